#include "inspection/files/Scenario.h"

#include "inspection/FoldedWrites.h"
#include "inspection/files/ChipsFile.h"
#include "inspection/views/Terminal.h"

#include <algorithm>

namespace Inspection {

using Rex::Value;
using Rex::ValueError;

char const * Event::word() const {
   static constexpr char const * words[] = { "set", "delete", "transaction", "fault" };
   return words[static_cast< std::size_t >( kind )];
}

std::string Event::cause() const {
   return kind == Kind::transaction || kind == Kind::fault ? word() : attribute ? path + " " + *attribute : path;
}

std::string Event::text() const {
   if ( fault ) {
      return "fault " + printable( fault->text() );
   }
   if ( kind == Kind::transaction ) {
      std::string all = "at once:";
      for ( Event const & change : changes ) {
         all += ( &change == &changes.front() ? " " : ", " ) + change.text();
      }
      return all;
   }
   std::string out = ( kind == Kind::set ? "set " : "delete " ) + printable( path );
   out += attribute ? " " + printable( *attribute ) : "";
   out += key ? "[" + printable( *key ) + "]" : "";
   out += kind == Kind::set ? " = " + printable( Rex::toText( value ) ) : "";
   return out;
}

std::vector< Event > changesOf( Event event ) {
   std::vector< Event > all = std::move( event.changes );
   if ( event.kind != Event::Kind::transaction ) {
      all.push_back( std::move( event ) );
   }
   return all;
}

void Event::change( Simulator::StateTree & state ) const {
   if ( kind == Kind::transaction ) {
      for ( std::size_t at = 0; at < changes.size(); ++at ) {
         Rex::below( std::to_string( at ),
                     [&] { Rex::below( changes[at].word(), [&] { changes[at].change( state ); } ); } );
      }
   } else if ( fault ) {
      // It is the chips' that change.
   } else if ( kind == Kind::set && key ) {
      state.entryIs( path, *attribute, *key, value );
   } else if ( kind == Kind::set ) {
      state.attributeIs( path, *attribute, value );
   } else if ( attribute ) {
      state.entryDel( path, *attribute, *key );
   } else {
      state.entityDel( path );
   }
}

Simulator::FapDescription const & Scenario::fap( U16 number ) const {
   for ( auto const & fap : description.faps ) {
      if ( fap.fapId.value() == number ) {
         return fap;
      }
   }
   throw InputError( file + ": /chips/" + std::to_string( number ), "the switch has no such FAP" );
}

void checkHasFap( Simulator::SwitchDescription const & description, std::optional< U16 > asked ) {
   std::vector< U32 > known;
   for ( auto const & fap : description.faps ) {
      known.push_back( fap.fapId.value() );
   }
   if ( asked && std::ranges::find( known, *asked ) == known.end() ) {
      throw InputError( "--fap " + std::to_string( *asked ), "the switch has no such FAP; it has " + ranges( known ) );
   }
}

void Scenario::fillChips( Simulator::ChipDriver & driver ) const {
   for ( auto const & [number, contents] : chips ) {
      auto const & of = fap( number );
      auto & chip = *driver.chip( of.fapId );
      inFile( file, [&, fap = number, what = &contents] {
         Rex::below( "chips", [&] {
            Rex::below( std::to_string( fap ), [&] {
               apply( what->tables, chip, of.revision.chipType() );
               Rex::below( "controls", [&] {
                  for ( auto const & [control, value] : what->controls ) {
                     chip.controlIs( control, value );
                  }
               } );
            } );
         } );
      } );
   }
}

void stateIs( Simulator::StateTree & state, std::string const & path, Value const & attributes ) {
   try {
      if ( attributes.isNull() ) {
         state.entityDel( path );
      } else {
         state.attributesIs( path, attributes );
      }
   } catch ( ValueError const & error ) {
      // Places in {"path", "value"}, where the one is the key of the other.
      constexpr std::string_view value = "/value";
      auto faults = error.faults();
      for ( auto & fault : faults ) {
         fault.isKey = fault.isKey || !fault.place.starts_with( value );
         fault.place = fault.place.starts_with( value ) ? fault.place.substr( value.size() ) : "";
      }
      throw ValueError( std::move( faults ) );
   }
}

void Scenario::prepare( Simulator::SimulatedSwitch & sw ) const {
   fillChips( sw.driver() );
   inFile( file, [&] {
      for ( auto const & [path, attributes] : state ) {
         Rex::below( "state", [&, at = path, of = &attributes] {
            Rex::below( at, [&] { sw.change( [&] { stateIs( sw.state(), at, *of ); } ); } );
         } );
      }
   } );
   using enum Simulator::SwitchDescription::Supervised;
   auto const wanted = sw.description().supervised;
   bool const fails = std::ranges::any_of( events, []( Event const & event ) { return event.fault.has_value(); } );
   if ( wanted == always || ( wanted == whereChipsFail && fails ) ) {
      sw.supervise();
   }
}

void Scenario::play( Simulator::SimulatedSwitch & sw, Event const & event ) const {
   inFile( file, [&] {
      try {
         if ( event.fault && sw.supervised() ) {
            sw.fault( *event.fault );
         } else {
            sw.change( [&] { event.change( sw.state() ); }, event.cause(), valueOf( event ) );
         }
      } catch ( ValueError const & error ) {
         throw error.below( event.word() ).below( std::to_string( event.number - 1 ) ).below( "events" );
      }
   } );
}

} // namespace Inspection
