// Where the parts of a text of JSON stand.
//
//    JsonPlaces places( { "/switch/faps/0" } );
//    places.search( text );
//    places.at( "/switch/faps/0" ).value;         // how many bytes stand before it
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace Inspection {

class JsonPlaces {
 public:
   static constexpr std::size_t nowhere = std::string::npos;

   struct Place {
      std::size_t key = nowhere;   // of a member: where its key begins, the last time where it stands twice
      std::size_t value = nowhere; // the first time
   };

   // A JSON pointer to look for.
   void want( std::string const & pointer ) { wanted_[pointer]; }
   // The text is one that the reader has accepted, to its end or up to what it refused.
   void search( std::string_view text );
   Place const & at( std::string const & pointer ) const { return wanted_.at( pointer ); }

 private:
   void value( std::string const & pointer );
   void members( std::string const & pointer );
   void elements( std::string const & pointer );
   bool isAboveWanted( std::string const & pointer ) const;
   void skipValue();
   std::string_view string();
   void blanks();
   bool next( char letter );

   std::map< std::string, Place > wanted_;
   std::string_view text_;
   std::size_t at_ = 0;
};

} // namespace Inspection
