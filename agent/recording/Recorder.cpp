#include "agent/recording/Recorder.h"

#include "agent/SystemLog.h"
#include "inspection/Play.h"
#include "inspection/Version.h"
#include "inspection/files/RecordingFolder.h"
#include "inspection/files/SavedScenario.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace Live {

namespace {

using Inspection::InputError;
using Inspection::toJson;
using Rex::Value;
namespace fs = std::filesystem;

std::string begun( char const * op ) {
   return "{\"op\": \"" + std::string( op ) + "\"";
}

std::string textOf( Position const & position ) {
   return "{\"server\": " + Inspection::quoted( position.server ) +
          ", \"epoch\": " + Inspection::quoted( position.epoch ) +
          ", \"entry\": " + Inspection::quoted( position.entry ) + "}";
}

} // namespace

Recorder::Recorder( Simulator::SimulatedSwitch & sw,
                    Inspection::Scenario const & begun,
                    RecordingOptions options,
                    PositionNow position,
                    Metrics * metrics )
   : sw_( sw ), begun_( begun ), options_( std::move( options ) ),
     positionNow_( position ? std::move( position ) : [] { return Position(); } ), metrics_( metrics ) {
   if ( options_.plugin.empty() ) {
      options_.plugin = Inspection::thisVersion().pluginId.value_or( "" );
   }
   options_.segments = std::max< std::size_t >( options_.segments, 1 );
   // A limit on the size of files is as a full disk, and doesn't end the process.
   struct sigaction before {};
   if ( ::sigaction( SIGXFSZ, nullptr, &before ) == 0 && before.sa_handler == SIG_DFL ) {
      std::signal( SIGXFSZ, SIG_IGN );
   }
}

Recorder::~Recorder() {
   stop();
   sw_.journal().readerDel( *this );
}

// ---- beginning, ending

void Recorder::begin( std::string const & folder ) {
   if ( isRecording() ) {
      return;
   }
   options_.folder = folder.empty() ? options_.folder : folder;
   if ( options_.folder.empty() ) {
      throw InputError( "name the folder that the recording is to be written to" );
   }
   trouble_.clear();
   beginSegment();
   if ( event_ ) { // else when the event 0 is over: the state is complete then
      try {
         writeBegin();
      } catch ( InputError const & ) {
         sink_.reset();
         throw;
      }
   }
   if ( metrics_ ) {
      metrics_->is( Metric::recording, 1 );
   }
}

// A new number, and a file of its own: no other is ever opened again.
void Recorder::beginSegment() {
   std::string const & slice = begun_.description.sliceName;
   if ( slice.empty() || slice.find( '/' ) != std::string::npos ) {
      throw InputError( options_.folder,
                        "a slice that is called \"" + slice + "\" can't be recorded in files of its name" );
   }
   std::vector< Inspection::RecordingSegment > mine;
   for ( auto & segment : Inspection::segmentsIn( options_.folder ) ) {
      if ( segment.slice == slice ) {
         mine.push_back( std::move( segment ) );
      }
   }
   for ( std::size_t old = 0; old + options_.segments <= mine.size(); ++old ) {
      ::unlink( mine[old].path.c_str() );
   }
   segment_ = std::max( segment_, mine.empty() ? 0 : mine.back().number ) + 1;
   path_ = ( fs::path( options_.folder ) / Inspection::segmentName( slice, segment_, options_.isCompressed ) ).string();
   int const file = ::open( path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0640 );
   if ( file < 0 ) {
      throw InputError( path_, std::string( "can't be written: " ) + std::strerror( errno ) );
   }
   ::close( file );
   sink_ = std::make_unique< Inspection::ByteSink >( path_ );
   hasBegin_ = false;
   operations_ = 0;
}

// Before the first event the chips are as the scenario has them; later, as they are now.
void Recorder::writeBegin() {
   Inspection::Scenario scenario;
   std::string recording = "{\"slice\": " + Inspection::quoted( begun_.description.sliceName ) +
                           ", \"segment\": " + std::to_string( segment_ );
   if ( event_ ) {
      scenario = Inspection::savedScenario( begun_, sw_ );
      recording += ", \"event\": " + std::to_string( *event_ );
   } else {
      scenario = begun_;
      scenario.state = Inspection::stateLeftBy( sw_ );
   }
   position_ = positionNow_();
   hasBegin_ = true;
   line( begun( "begin" ) + ", \"recording\": " + recording +
         "}, \"format\": 2, \"l3sm\": " + Inspection::quoted( std::string( Inspection::versionNumber() ) ) +
         ", \"plugin\": " + Inspection::quoted( options_.plugin ) + ", \"database\": " + textOf( position_ ) +
         ", \"scenario\": " + toJson( valueOf( scenario, Inspection::Parts::withoutEvents ), 0 ) );
}

void Recorder::endSegment( std::string const & how, std::string const & more ) {
   if ( hasBegin_ ) {
      line( begun( "end" ) + ", \"ended\": \"" + how + "\", \"events\": " + std::to_string( event_.value_or( 0 ) ) +
            ", \"operations\": " + std::to_string( operations_ ) + more );
   }
   sink_->close();
   sink_.reset();
   if ( !hasBegin_ ) {
      ::unlink( path_.c_str() ); // nothing has happened
   }
}

void Recorder::stop() {
   writing( [&] { endSegment( "stopped" ); } );
   if ( metrics_ ) {
      metrics_->is( Metric::recording, 0 );
   }
}

// What can't be written ends the recording, and nothing else.
template< class Write >
void Recorder::writing( Write const & write ) {
   if ( !isRecording() ) {
      return;
   }
   try {
      write();
   } catch ( InputError const & error ) {
      sink_.reset();
      trouble_ = error.what();
      say( Level::error, trouble_ + "; recording stops" );
      if ( metrics_ ) {
         metrics_->add( Metric::recordingFailures );
         metrics_->is( Metric::recording, 0 );
      }
   }
}

void Recorder::line( std::string const & text ) {
   sink_->append( text + "}\n" );
   sink_->bringToDisk();
}

void Recorder::tick() {
   writing( [&] {
      struct stat is {};
      if ( ::stat( path_.c_str(), &is ) != 0 ) {
         throw InputError( path_, std::string( "is gone: " ) + std::strerror( errno ) );
      }
   } );
}

// ---- what happens

void Recorder::note( char const * op, std::string const & more ) {
   writing( [&] {
      if ( hasBegin_ ) {
         line( begun( op ) + ", \"after\": " + std::to_string( event_.value_or( 0 ) ) + ", " + more );
      }
   } );
}

void Recorder::mark( std::string const & text ) {
   note( "mark", "\"text\": " + Inspection::quoted( text ) );
}

void Recorder::command( std::string const & name, Value const & arguments ) {
   note( "command", "\"command\": " + Inspection::quoted( name ) + ", \"arguments\": " + toJson( arguments, 0 ) );
}

void Recorder::fault( Value const & fault ) {
   note( "fault", "\"fault\": " + toJson( fault, 0 ) );
}

void Recorder::eventBegins( U32 event, Value const & what ) {
   hash_.clear();
   isInEvent_ = true;
   if ( isRecording() ) {
      what_ = toJson( what, 0 );
      if ( !hasBegin_ ) {
         writing( [&] { writeBegin(); } );
      }
   }
   event_ = event;
}

void Recorder::row( Simulator::Row const & row ) {
   if ( sink_ ) {
      hash_.add( row );
   }
}

void Recorder::eventLine( bool isWhole ) {
   std::string text = begun( "event" ) + ", \"event\": " + std::to_string( *event_ ) + ", \"what\": " + what_ +
                      ", \"operations\": " + std::to_string( hash_.count() ) + ", \"hash\": \"" + hash_.text() + "\"";
   operations_ += hash_.count();
   Position const now = positionNow_();
   if ( now.server != position_.server || now.epoch != position_.epoch ) {
      text += ", \"database\": " + textOf( now );
   } else if ( now.entry != position_.entry ) {
      text += ", \"entry\": " + Inspection::quoted( now.entry );
   }
   position_ = now;
   line( text + ( isWhole ? "" : ", \"isWhole\": false" ) );
}

void Recorder::eventEnds( U32 ) {
   isInEvent_ = false;
   writing( [&] {
      eventLine( true );
      if ( sink_->written() >= options_.segmentBytes ) {
         endSegment( "rotated" );
         beginSegment();
         writeBegin();
      }
   } );
}

void Recorder::ends( Simulator::Ending const & ending ) {
   using enum Simulator::Ending::Kind;
   writing( [&] {
      if ( ending.kind == assertion ) {
         if ( isInEvent_ ) {
            eventLine( false );
         }
         endSegment( "assertion",
                     ", \"text\": " + Inspection::quoted( ending.text ) +
                        ", \"function\": " + Inspection::quoted( ending.function ) +
                        ", \"source\": " + Inspection::quoted( ending.source ) );
      } else {
         endSegment( ending.kind == complete ? "complete" : "interrupted" );
      }
   } );
}

} // namespace Live
