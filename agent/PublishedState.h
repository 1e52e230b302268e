// What the plug-in publishes in the state, by path: interface statuses, managed directories. For others to read in the
// database.
//
//    PublishedState published;
//    sw.journal().readerAdd( published );
//    published.all();                     // for a database that knows nothing yet
//    published.takeChanged();             // what has changed since; a path without attributes is gone
//
// A managed directory only refers to interfaces: each that it has is a path with the attribute `managed`.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/Paths.h"
#include "simulator/Row.h"

namespace Live {

class PublishedState final : public Simulator::RowReader {
 public:
   void row( Simulator::Row const & row ) override;

   Paths const & all() const { return all_; }
   Paths takeChanged();
   bool hasChanged() const { return !changed_.empty(); }

 private:
   void becomes( std::string const & path, std::string const & attribute, Rex::Value const & value );
   void goes( std::string const & path );

   Paths all_;
   std::set< std::string > changed_;
};

} // namespace Live
