#include "inspection/views/Summary.h"

#include "inspection/FoldedWrites.h"
#include "inspection/ServedFaps.h"
#include "inspection/ServedInterfaces.h"
#include "simulator/BootImage.h"
#include "simulator/TableMap.h"

#include <algorithm>

namespace Inspection {

namespace {

using Simulator::addressMap;
using Simulator::Row;

constexpr std::size_t mostGroups = 6;  // of one function on one table, before the rest is only counted
constexpr std::size_t lineWidth = 116; // of the lists of fields that stay as they are

std::string plural( std::size_t count, std::string const & what ) {
   return std::to_string( count ) + " " + what + ( count == 1 ? "" : "s" );
}

// Names in a paragraph of lines that begin with `indent`.
void writeWrapped( std::ostream & out, std::string const & indent, std::vector< std::string > const & parts ) {
   std::string line;
   for ( auto const & part : parts ) {
      if ( !line.empty() && indent.size() + line.size() + part.size() + 2 > lineWidth ) {
         out << indent << line << '\n';
         line.clear();
      }
      line += ( line.empty() ? "" : "  " ) + part;
   }
   if ( !line.empty() ) {
      out << indent << line << '\n';
   }
}

struct Counts {
   std::size_t reads = 0;
   std::size_t writes = 0;
   std::size_t changes = 0;
   std::size_t controls = 0;
};

class Summary {
 public:
   Summary( std::ostream & out,
            Scenario const & scenario,
            Simulator::SimulatedSwitch const & sw,
            KeptRows const & rows )
      : out_( out ), scenario_( scenario ), sw_( sw ), rows_( rows ) {}

   void write() {
      countOperations();
      out_ << ( scenario_.name.empty() ? scenario_.file : scenario_.name ) << "\n\n";
      writeSwitch();
      writeToggles();
      writeInterfaces( out_, interfacesOf( sw_ ) );
      for ( U32 event = 0; event <= scenario_.events.size(); ++event ) {
         writeEvent( event );
      }
   }

 private:
   using Place = std::pair< U32, U16 >; // event and FAP

   void countOperations() {
      for ( auto const & row : rows_.all() ) {
         served_.follow( row );
         if ( !row.isOperation() ) {
            continue;
         }
         auto & counts = counts_[{ row.event, row.fap }];
         counts.reads += row.kind == Row::Kind::read;
         counts.writes += row.kind == Row::Kind::write;
         counts.controls += row.kind == Row::Kind::control;
         counts.changes += row.kind == Row::Kind::write && row.changed;
      }
   }

   void writeSwitch() {
      out_ << "Switch, slice " << scenario_.description.sliceName << '\n';
      for ( auto const & fap : faps() ) {
         auto const & revision = fap->revision;
         out_ << "  FAP " << fap->fapId << "  " << fap->name << "  " << revision.chipType() << ", major "
              << revision.fapRevMajor() << ", SDK " << revision.sdkVersion() << ", "
              << plural( fap->coreCount(), "core" ) << "  " << servedText( fap->fapId.value() ) << '\n';
      }
      out_ << '\n';
   }

   std::string servedText( U16 fap ) const {
      auto const served = served_.of( fap );
      return served.isServed ? "served" : "NOT SERVED: " + served.reason + "; " + served.remedy();
   }

   void writeToggles() {
      out_ << "Toggles that were read\n";
      auto const & settings = scenario_.description.toggles;
      auto const isSet = [&]( std::string const & file, std::string const & name ) {
         auto const found = settings.find( file );
         return found != settings.end() && found->second.contains( name );
      };
      for ( auto const & reading : Toggle::readings() ) {
         out_ << "  " << reading.name << " (" << reading.file << ") " << ( reading.state ? "on" : "off" )
              << ( isSet( reading.file, reading.name ) ? "" : ", the default" ) << '\n';
      }
      for ( auto const & [file, names] : settings ) {
         for ( auto const & [name, on] : names ) {
            if ( !wasRead( file, name ) ) {
               out_ << "  " << name << " (" << file << ") " << ( on ? "on" : "off" ) << ", but nothing has read it\n";
            }
         }
      }
      out_ << '\n';
   }

   static bool wasRead( std::string const & file, std::string const & name ) {
      auto const & readings = Toggle::readings();
      return std::any_of( readings.begin(), readings.end(), [&]( Toggle::Reading const & reading ) {
         return reading.file == file && reading.name == name;
      } );
   }

   void writeEvent( U32 event ) {
      out_ << "Event " << event << ": " << ( event == 0 ? "start" : scenario_.events[event - 1].text() ) << '\n';
      bool isSilent = true;
      for ( auto const & fap : faps() ) {
         auto const found = counts_.find( { event, fap->fapId.value() } );
         if ( found != counts_.end() ) {
            isSilent = false;
            writeFap( event, *fap, found->second );
         }
      }
      out_ << ( isSilent ? "  nothing was asked of any chip\n\n" : "\n" );
   }

   void writeFap( U32 event, Simulator::FapDescription const & fap, Counts const & counts ) {
      out_ << "  FAP " << fap.fapId << ": " << plural( counts.reads, "read" ) << ", "
           << plural( counts.writes, "write" ) << ", " << counts.changes << " of them with a change, "
           << plural( counts.controls, "control" ) << '\n';
      std::vector< Row const * > writes;
      std::vector< Row const * > controls;
      for ( auto const & row : rows_.all() ) {
         if ( row.event == event && row.fap == fap.fapId.value() &&
              ( row.kind == Row::Kind::write || row.kind == Row::Kind::control ) ) {
            ( row.layout ? writes : controls ).push_back( &row );
         }
      }
      writeGroups( groupsOf( writes ) );
      for ( auto const * control : controls ) {
         out_ << "    " << control->function << "  " << control->source << '\n';
         out_ << "      control " << control->control << ": "
              << ( control->valueBefore ? std::to_string( *control->valueBefore ) : "unset" ) << " -> "
              << control->value << '\n';
      }
   }

   void writeGroups( std::vector< WriteGroup > const & groups ) {
      std::string_view function;
      std::string_view source;
      std::size_t ofSource = 0;
      std::size_t left = 0;
      for ( auto const & group : groups ) {
         auto const & row = group.first();
         if ( row.source != source || row.function != function ) {
            writeLeft( left );
            left = 0;
            ofSource = 0;
            if ( row.function != function ) {
               out_ << "    " << row.function << "  " << group.first().cause << '\n';
            }
            function = row.function;
            source = row.source;
         }
         if ( ++ofSource > mostGroups ) {
            left += group.writes.size();
         } else {
            writeGroup( group );
         }
      }
      writeLeft( left );
   }

   void writeLeft( std::size_t left ) {
      if ( left > 0 ) {
         out_ << "      ... and " << plural( left, "more write" ) << ", each with values of its own\n";
      }
   }

   void writeGroup( WriteGroup const & group ) {
      auto const & row = group.first();
      auto const places = group.places();
      out_ << "      " << row.table << ( group.first().layout->variant ? " variant " : "" )
           << ( group.first().layout->variant ? std::to_string( row.variant ) : "" )
           << ( places.empty() ? "" : "  " + places ) << "  " << row.source
           << ( group.changed() ? "" : "  (as it was)" ) << '\n';
      std::vector< std::string > kept;
      for ( auto const & field : group.fields ) {
         if ( field.changed ) {
            out_ << "        " << field.name << "  " << field.before << " -> " << field.after << '\n';
         } else {
            kept.push_back( field.name + " " + field.after );
         }
      }
      if ( !kept.empty() ) {
         kept.front() = "unchanged: " + kept.front();
         writeWrapped( out_, "        ", kept );
      }
   }

   std::vector< Simulator::FapDescription const * > faps() const {
      std::map< U16, Simulator::FapDescription const * > byNumber;
      for ( auto const & fap : scenario_.description.faps ) {
         byNumber[fap.fapId.value()] = &fap;
      }
      std::vector< Simulator::FapDescription const * > all;
      for ( auto const & [number, fap] : byNumber ) {
         all.push_back( fap );
      }
      return all;
   }

   std::ostream & out_;
   Scenario const & scenario_;
   Simulator::SimulatedSwitch const & sw_;
   KeptRows const & rows_;
   std::map< Place, Counts > counts_;
   ServedFaps served_;
};

} // namespace

void writeSummary( std::ostream & out,
                   Scenario const & scenario,
                   Simulator::SimulatedSwitch const & sw,
                   KeptRows const & rows ) {
   Summary( out, scenario, sw, rows ).write();
}

} // namespace Inspection
