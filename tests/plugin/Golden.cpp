#include "Golden.h"

#include "simulator/TableMap.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace Golden {

namespace {

using Simulator::Journal;

constexpr Hardware::Dace::FapId theFap( 0 );
constexpr std::size_t longestLine = 100;

// Whether the field's bits are those of smaller fields of the entry.
bool isView( Catalogue::Layout const & layout, Catalogue::Field const & field ) {
   std::set< unsigned > covered;
   for ( auto const & part : layout.fields ) {
      if ( part.width < field.width && part.offset >= field.offset &&
           part.offset + part.width <= field.offset + field.width ) {
         for ( unsigned bit = part.offset; bit < unsigned{ part.offset } + part.width; ++bit ) {
            covered.insert( bit );
         }
      }
   }
   return covered.size() == field.width;
}

// The names of the fields that are no views, in the order of the catalogue; decided once for each layout.
std::vector< bool > const & shownFields( Catalogue::Layout const & layout ) {
   static std::map< Catalogue::Layout const *, std::vector< bool > > known;
   auto const [it, isNew] = known.try_emplace( &layout );
   if ( isNew ) {
      for ( auto const & field : layout.fields ) {
         it->second.push_back( !isView( layout, field ) );
      }
   }
   return it->second;
}

void addFields( Fields & fields,
                Catalogue::Layout const & layout,
                std::span< U32 const > words,
                std::string const & prefix ) {
   auto const & shown = shownFields( layout );
   auto const decoded = Simulator::decode( layout, words );
   for ( std::size_t index = 0; index < decoded.size(); ++index ) {
      if ( shown[index] && decoded[index].value != "0x0" ) {
         fields.emplace_back( prefix + decoded[index].name, decoded[index].value );
      }
   }
}

Fields fieldsOf( Catalogue::Layout const & layout, std::vector< Simulator::Words > const & copies ) {
   Fields fields;
   for ( std::size_t copy = 0; copy < copies.size(); ++copy ) {
      addFields( fields, layout, copies[copy], copies.size() == 1 ? "" : "copy " + std::to_string( copy ) + " " );
   }
   return fields;
}

std::string tableText( std::string const & table, U32 variant, U32 array ) {
   return table + " " + std::to_string( variant ) + "/" + std::to_string( array );
}

std::set< Place > writtenPlaces( Simulator::SimulatedSwitch const & sw ) {
   std::set< Place > places;
   for ( auto const & row : sw.journal().operations() ) {
      if ( row.kind == Simulator::Row::Kind::write && row.fap == theFap.value() ) {
         places.insert( { tableText( std::string( row.table ), row.variant, static_cast< U32 >( row.array ) ),
                          row.entry.value_or( 0 ) } );
      }
   }
   return places;
}

// Lines by entry: runs of entries with the same ones are written once, below the name of their table.
using Lines = std::vector< std::string >;
std::string textOf( std::map< Place, Lines > const & entries ) {
   std::ostringstream out;
   std::string table;
   for ( auto it = entries.begin(); it != entries.end(); ) {
      auto last = it;
      auto next = std::next( it );
      while ( next != entries.end() && next->first.table == it->first.table &&
              next->first.entry == last->first.entry + 1 && next->second == it->second ) {
         last = next++;
      }
      if ( it->first.table != table ) {
         table = it->first.table;
         out << "\n" << table << "\n";
      }
      out << "   " << it->first.entry;
      if ( last != it ) {
         out << "-" << last->first.entry;
      }
      std::size_t length = 0;
      for ( auto const & line : it->second ) {
         length += line.size() + 2;
      }
      char const * separator = ": ";
      for ( auto const & line : it->second ) {
         out << ( length > longestLine ? "\n      " : separator ) << line;
         separator = ", ";
      }
      out << "\n";
      it = next;
   }
   return out.str();
}

std::string valueOf( Fields const & fields, std::string const & name ) {
   for ( auto const & [field, value] : fields ) {
      if ( field == name ) {
         return value;
      }
   }
   return "0x0";
}

// ---- across processes

std::string packed( Contents const & contents ) {
   std::string lines;
   for ( auto const & [control, value] : contents.controls ) {
      lines += "control\t" + std::to_string( control ) + "\t" + std::to_string( value ) + "\n";
   }
   for ( auto const & [place, fields] : contents.entries ) {
      lines += place.table + "\t" + std::to_string( place.entry );
      for ( auto const & [name, value] : fields ) {
         lines += "\t" + name + "\t" + value;
      }
      lines += "\n";
   }
   return lines;
}

Contents unpacked( std::string const & lines ) {
   Contents contents;
   std::istringstream in( lines );
   for ( std::string line; std::getline( in, line ); ) {
      std::istringstream parts( line );
      std::string what;
      std::string number;
      std::getline( parts, what, '\t' );
      std::getline( parts, number, '\t' );
      U32 const at = static_cast< U32 >( std::stoul( number ) );
      if ( what == "control" ) {
         parts >> contents.controls[at];
         continue;
      }
      auto & fields = contents.entries[{ what, at }];
      for ( std::string name, value; std::getline( parts, name, '\t' ) && std::getline( parts, value, '\t' ); ) {
         fields.emplace_back( name, value );
      }
   }
   return contents;
}

void writeAll( int to, std::string const & text ) {
   for ( std::size_t at = 0; at < text.size(); ) {
      ssize_t const wrote = write( to, text.data() + at, text.size() - at );
      if ( wrote < 0 ) {
         _exit( 1 );
      }
      at += static_cast< std::size_t >( wrote );
   }
}

std::string readAll( int from ) {
   std::string text;
   std::vector< char > buffer( 65536 );
   for ( ssize_t got; ( got = read( from, buffer.data(), buffer.size() ) ) > 0; ) {
      text.append( buffer.data(), static_cast< std::size_t >( got ) );
   }
   return text;
}

} // namespace

Contents everything( Simulator::SimulatedSwitch const & sw ) {
   auto const chipType = sw.description().faps.front().revision.chipType();
   auto const all = Simulator::contentsOf( sw.chip( theFap ), chipType );
   Contents contents;
   contents.controls = all.controls;
   for ( auto const & [table, variants] : all.tables ) {
      for ( auto const & [variant, arrays] : variants ) {
         auto const & layout = *Catalogue::layout(
            *Catalogue::table( table ), static_cast< U8 >( chipType ), static_cast< U8 >( variant ) );
         for ( auto const & [array, entries] : arrays ) {
            for ( auto const & [entry, it] : entries ) {
               contents.entries[{ tableText( table, variant, array ), entry }] = fieldsOf( layout, it.copies );
            }
         }
      }
   }
   return contents;
}

Contents written( Simulator::SimulatedSwitch const & sw ) {
   auto contents = everything( sw );
   auto const places = writtenPlaces( sw );
   std::erase_if( contents.entries, [&]( auto const & it ) { return !places.contains( it.first ); } );
   return contents;
}

std::string text( Contents const & contents ) {
   std::ostringstream out;
   for ( auto const & [control, value] : contents.controls ) {
      out << "control " << control << " = " << value << "\n";
   }
   std::map< Place, Lines > entries;
   for ( auto const & [place, fields] : contents.entries ) {
      Lines lines;
      for ( auto const & [name, value] : fields ) {
         lines.push_back( name + " " + value );
      }
      entries[place] = lines.empty() ? Lines{ "0" } : lines;
   }
   return out.str() + textOf( entries );
}

std::string difference( Contents const & on, Contents const & off ) {
   EXPECT_EQ( on.controls, off.controls ); // no toggle decides on a control so far
   std::map< Place, Lines > entries;
   for ( auto const & [place, fields] : on.entries ) {
      Fields const others = off.entries.contains( place ) ? off.entries.at( place ) : Fields{};
      Lines lines;
      for ( auto const & [name, value] : fields ) {
         if ( auto const other = valueOf( others, name ); other != value ) {
            lines.push_back( name + " " + value + ", off " + other );
         }
      }
      for ( auto const & [name, other] : others ) {
         if ( valueOf( fields, name ) == "0x0" ) {
            lines.push_back( name + " 0x0, off " + other );
         }
      }
      if ( !lines.empty() ) {
         entries[place] = lines;
      }
   }
   return textOf( entries );
}

Contents inProcessOfItsOwn( std::function< Contents() > const & make ) {
   int ends[2];
   EXPECT_EQ( pipe( ends ), 0 );
   pid_t const child = fork();
   if ( child == 0 ) {
      try {
         writeAll( ends[1], packed( make() ) );
         _exit( 0 );
      } catch ( std::exception const & error ) { // a toggle that was read before the fork
         std::fprintf( stderr, "%s\n", error.what() );
         _exit( 1 );
      }
   }
   close( ends[1] );
   auto const contents = unpacked( readAll( ends[0] ) );
   close( ends[0] );
   int status = 0;
   waitpid( child, &status, 0 );
   EXPECT_TRUE( WIFEXITED( status ) && WEXITSTATUS( status ) == 0 );
   return contents;
}

void expectFile( std::string const & path, std::string const & contents ) {
   auto const file = std::filesystem::path( L3SM_SOURCE_DIR ) / "tests/golden" / path;
   if ( testing::Test::HasFailure() ) {
      return; // nothing to keep, nothing to compare with
   }
   if ( std::getenv( "L3SM_GOLDEN_WRITE" ) ) {
      std::filesystem::create_directories( file.parent_path() );
      std::ofstream( file ) << contents;
      return;
   }
   std::ifstream kept( file );
   std::istringstream now( contents );
   std::string was;
   std::string is;
   for ( unsigned line = 1;; ++line ) {
      bool const more = static_cast< bool >( std::getline( kept, was ) );
      bool const moreNow = static_cast< bool >( std::getline( now, is ) );
      if ( !more && !moreNow ) {
         return;
      }
      if ( more != moreNow || was != is ) {
         ADD_FAILURE() << "tests/golden/" << path << ":" << line
                       << " is not what the program does. If the program is right: ./dev golden\n"
                       << "   written down: " << ( more ? was : "(end)" ) << "\n"
                       << "   done:         " << ( moreNow ? is : "(end)" );
         return;
      }
   }
}

} // namespace Golden
