// A database that answers as a test tells it to, and notes what it is asked.
#pragma once

#include "agent/database/Database.h"

#include <string>
#include <vector>

struct ScriptedDatabase final : Live::Database {
   std::vector< std::string > asked; // "snapshot", "since 3"
   std::vector< Live::Report > reports;

   std::string name() const override { return "a script"; }
   void snapshot() override { asked.emplace_back( "snapshot" ); }
   void since( Live::Position const & position ) override { asked.push_back( "since " + position.entry ); }
   void publish( Live::Report const & report ) override { reports.push_back( report ); }
   void stop() override { asked.emplace_back( "stop" ); }

   Follower & hears() { return *follower(); }
   // What it was asked since the last time.
   std::vector< std::string > takeAsked() { return std::exchange( asked, {} ); }
};
