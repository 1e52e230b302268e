#include "inspection/files/FileKind.h"

#include "inspection/files/ByteStreams.h"

#include <algorithm>
#include <vector>

namespace Inspection {

namespace {

constexpr std::size_t lookedAt = 1 << 16;

// Walks over the keys of the outermost object, as far as the text goes: `each( key )` says whether to walk on.
template< class Each >
void eachOuterKey( std::string_view text, Each const & each ) {
   std::size_t depth = 0;
   std::size_t stringBegin = 0;
   std::size_t stringEnd = 0;
   for ( std::size_t at = 0; at < text.size(); ++at ) {
      switch ( text[at] ) {
      case '"':
         stringBegin = ++at;
         while ( at < text.size() && text[at] != '"' ) {
            at += text[at] == '\\' ? 2 : 1;
         }
         stringEnd = std::min( at, text.size() );
         break;
      case '{':
      case '[':
         ++depth;
         break;
      case '}':
      case ']':
         --depth;
         if ( depth == 0 ) {
            return;
         }
         break;
      case ':':
         if ( depth == 1 && !each( text.substr( stringBegin, stringEnd - stringBegin ) ) ) {
            return;
         }
         break;
      default:
         break;
      }
   }
}

FileKind kindOfObject( std::string_view text ) {
   auto kind = FileKind::otherJson;
   bool hasSeq = false;
   eachOuterKey( text, [&]( std::string_view key ) {
      if ( kind == FileKind::journal ) { // the key behind "op" tells
         kind = key == "recording" ? FileKind::recording : kind;
         return false;
      }
      if ( key == "op" || ( key == "event" && hasSeq ) ) {
         kind = FileKind::journal;
      } else if ( key == "faps" ) {
         kind = FileKind::chips;
      } else if ( key == "switch" || key == "events" ) {
         kind = FileKind::scenario;
      } else if ( key.find( '/' ) != std::string_view::npos ) {
         kind = FileKind::state;
      }
      hasSeq = hasSeq || key == "seq";
      return kind == FileKind::otherJson || key == "op";
   } );
   return kind;
}

} // namespace

FileKind kindOf( std::string_view text ) {
   auto const head = text.substr( 0, lookedAt );
   auto const first = head.find_first_not_of( " \t\r\n" );
   if ( first == std::string_view::npos ) {
      return FileKind::empty;
   }
   bool const hasControls = std::ranges::any_of( head, []( char letter ) {
      return static_cast< unsigned char >( letter ) < ' ' && letter != '\t' && letter != '\r' && letter != '\n' &&
             letter != '\f' && letter != '\x1b';
   } );
   if ( hasControls ) {
      return FileKind::binary;
   }
   switch ( head[first] ) {
   case '<':
      return FileKind::page;
   case '{':
      return kindOfObject( text.substr( first ) );
   case '[':
      return FileKind::otherJson;
   default:
      return FileKind::otherText;
   }
}

FileKind kindOfFile( std::string const & path ) {
   ByteSource source( path, ByteSource::Use::look );
   std::vector< char > head( lookedAt );
   std::size_t size = 0;
   while ( size < head.size() ) {
      auto const more = source.read( std::span( head ).subspan( size ) );
      if ( more == 0 ) {
         break;
      }
      size += more;
   }
   return kindOf( { head.data(), size } );
}

std::string_view nameOf( FileKind kind ) {
   constexpr std::string_view names[] = { "a journal",
                                          "a chips file",
                                          "a scenario",
                                          "a state file",
                                          "a page for a browser",
                                          "a JSON file of another kind",
                                          "a text of another kind",
                                          "a binary file of another kind",
                                          "empty",
                                          "a recording" };
   return names[static_cast< std::size_t >( kind )];
}

std::string notA( FileKind wanted, std::string_view text ) {
   constexpr std::string_view writers[] = { "run --journal FILE", "run --chips FILE", "new", "run --state FILE" };
   std::string what = "is " + std::string( nameOf( kindOf( text ) ) ) + ", no ";
   what += nameOf( wanted ).substr( 2 );
   auto const writer = static_cast< std::size_t >( wanted );
   return writer < std::size( writers ) ? what + "; `l3sm " + std::string( writers[writer] ) + "` writes one" : what;
}

} // namespace Inspection
