// Agents as processes of their own, as `l3sm serve` is, and what can be asked of them.
//
//    ServedAgent agent( folder, "Linecard3", { "BCM88690_B0" }, server.url() );
//    ASSERT_TRUE( agent.isSoon( "running" ) );
//    agent.dies();                               // kill -9
//    agent.starts();
//    agent.ctl( "show" );                        // what `l3sm ctl --json show` prints
#pragma once

#include "BuildFolder.h"
#include "ChildProgram.h"
#include "Folder.h"
#include "Soon.h"

class ServedAgent : public ChildProgram {
 public:
   ServedAgent(
      Folder const & folder, std::string slice, std::string const & theSwitch, std::string database, Words more = {} )
      : folder_( folder ), slice_( std::move( slice ) ), database_( std::move( database ) ),
        more_( std::move( more ) ) {
      folder_.file( slice_ + ".json", theSwitch );
      starts();
   }
   // It ends as whoever runs it ends it. What doesn't is killed.
   ~ServedAgent() {
      if ( isRunning() ) {
         goesOn();
         ::kill( process(), SIGTERM );
      }
      soon( [this] { return !isRunning(); } );
   }
   ServedAgent( ServedAgent const & ) = delete;
   ServedAgent & operator=( ServedAgent const & ) = delete;

   void starts() {
      Words words{ program(), "serve", folder_ / ( slice_ + ".json" ), "--slice", slice_, "--socket", socket() };
      if ( !database_.empty() ) {
         words.insert( words.end(), { "--database", database_ } );
      }
      words.insert( words.end(), more_.begin(), more_.end() );
      begins( words, folder_ / ( slice_ + ".log" ) );
   }
   // Its further options, from the next start on.
   void moreIs( Words more ) { more_ = std::move( more ); }
   std::string log() const { return folder_.text( slice_ + ".log" ); }
   std::string socket() const { return folder_ / ( slice_ + ".ctl" ); }

   // What a command prints, of both kinds.
   std::string ctl( std::string const & command ) const {
      return output( "ctl --socket '" + socket() + "' --json " + command );
   }
   std::string phase() const {
      auto const text = ctl( "status" );
      std::string const key = "\"phase\": \"";
      auto const at = text.find( key );
      return at == std::string::npos
                ? std::string()
                : text.substr( at + key.size(), text.find( '"', at + key.size() ) - at - key.size() );
   }
   bool isSoon( std::string const & wanted ) const {
      return soon( [&] { return phase() == wanted; } );
   }
   std::string output( std::string const & arguments ) const {
      std::string const file = folder_ / ".output";
      std::string const line = "'" + program() + "' " + arguments + " </dev/null >'" + file + "' 2>&1";
      static_cast< void >( std::system( line.c_str() ) );
      return contentsOf( file );
   }

 private:
   static std::string program() { return buildFolder() + "/bin/l3sm"; }

   Folder const & folder_;
   std::string slice_;
   std::string database_;
   Words more_;
};
