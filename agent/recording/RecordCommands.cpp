#include "agent/recording/RecordCommands.h"

namespace Live {

namespace {

Rex::Value told( Recorder const & recorder ) {
   return Rex::Value::Object{
      { "recording", recorder.isRecording() }, { "segment", recorder.path() }, { "trouble", recorder.trouble() } };
}

} // namespace

void addRecordCommands( Commands & commands, Recorder & recorder ) {
   commands.add( { .name = "record start",
                   .does = "record what the agent is told from now on, so that it can be played again",
                   .arguments = { { .name = "folder",
                                    .isOptional = true,
                                    .what = "where to; without one, where it recorded before" } },
                   .changes = true,
                   .answer = [&recorder]( Arguments const & given ) -> Answer {
                      recorder.begin( given.optional< std::string >( "folder" ).value_or( "" ) );
                      return told( recorder );
                   } } );
   commands.add( { .name = "record mark",
                   .does = "put a mark in the recording, for whoever reads it later",
                   .arguments = { { .name = "text", .what = "what is to stand there" } },
                   .changes = true,
                   .answer = [&recorder]( Arguments const & given ) -> Answer {
                      if ( !recorder.isRecording() ) {
                         throw CommandError( CommandError::refused,
                                             "nothing is recorded; begin with: record start FOLDER" );
                      }
                      recorder.mark( given.required< std::string >( "text" ) );
                      return told( recorder );
                   } } );
   commands.add( { .name = "record stop",
                   .does = "end the recording",
                   .changes = true,
                   .answer = [&recorder]( Arguments const & ) -> Answer {
                      recorder.stop();
                      return told( recorder );
                   } } );
}

} // namespace Live
