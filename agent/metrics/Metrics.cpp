#include "agent/metrics/Metrics.h"

#include "agent/database/Paths.h"
#include "assert/Assert.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace Live {

namespace {

using Simulator::Row;

constexpr std::string_view kinds[] = { "read", "write", "control" };

// Of the time that an event takes.
constexpr std::array upTo{
   0.00001, 0.00002, 0.00005, 0.0001, 0.0002, 0.0005, 0.001, 0.002, 0.005, 0.01, 0.02, 0.05, 0.1, 0.5, 1.0, 10.0 };

MetricFamily const & familyOf( Metric metric ) {
   return metricFamilies()[static_cast< std::size_t >( metric )];
}

std::size_t labelsOf( MetricFamily const & family ) {
   return static_cast< std::size_t >( std::ranges::find( family.labels, nullptr ) - family.labels.begin() );
}

std::string numberText( double value ) {
   if ( std::isnan( value ) ) {
      return "NaN";
   }
   if ( std::isinf( value ) ) {
      return value > 0 ? "+Inf" : "-Inf";
   }
   std::array< char, 32 > digits;
   bool const isWhole = std::abs( value ) < 1e15 && value == std::trunc( value );
   auto const end = isWhole ? std::to_chars( digits.begin(), digits.end(), static_cast< std::int64_t >( value ) )
                            : std::to_chars( digits.begin(), digits.end(), value );
   return { digits.begin(), end.ptr };
}

std::string escaped( std::string_view text, bool isLabel ) {
   std::string out;
   for ( char const letter : text ) {
      if ( letter == '\n' ) {
         out += "\\n";
      } else {
         out += letter == '\\' || ( letter == '"' && isLabel ) ? "\\" : "";
         out += letter;
      }
   }
   return out;
}

class Writer {
 public:
   void begin( MetricFamily const & family ) {
      constexpr std::string_view types[] = { "counter", "gauge", "histogram" };
      family_ = &family;
      text += std::string( "# HELP " ) + family.name + " " + escaped( family.help, false ) + "\n";
      text += std::string( "# TYPE " ) + family.name + " ";
      text += types[static_cast< std::size_t >( family.type )];
      text += "\n";
   }
   void sample( Metrics::Labels const & values, double value ) {
      std::string labels;
      for ( std::size_t label = 0; label < values.size(); ++label ) {
         addLabel( labels, family_->labels[label], values[label] );
      }
      line( "", labels, numberText( value ) );
   }
   void bucket( double bound, U64 count ) {
      std::string labels;
      addLabel( labels, "le", numberText( bound ) );
      line( "_bucket", labels, std::to_string( count ) );
   }
   void line( std::string_view suffix, std::string const & labels, std::string const & value ) {
      text += family_->name;
      text += suffix;
      text += labels.empty() ? "" : "{" + labels + "}";
      text += " " + value + "\n";
   }

   std::string text;

 private:
   static void addLabel( std::string & labels, char const * name, std::string const & value ) {
      labels += labels.empty() ? "" : ",";
      labels += std::string( name ) + "=\"" + escaped( value, true ) + "\"";
   }
   MetricFamily const * family_ = nullptr;
};

// Of a transaction so many changes are looked at, as snapshots have many thousands.
constexpr std::size_t lookedAt = 64;

// The path of one change without its keys.
std::string withoutKeys( Rex::Value::Object const & change ) {
   auto const found = change.find( "path" );
   auto const * path = found == change.end() ? nullptr : found->second.text();
   if ( !path ) {
      return "other";
   }
   try {
      std::string out;
      std::string at = *path;
      for ( auto place = placeOf( at ); !place.isRoot(); place = placeOf( at ) ) {
         out = ( place.attribute.empty() ? "" : "/" + place.attribute ) + out;
         at = place.owner;
      }
      return at + out;
   } catch ( Rex::ValueError const & ) {
      return "other"; // whatever it is called
   }
}

} // namespace

std::string causeWithoutKeys( Rex::Value const & what ) {
   auto const * object = what.object();
   if ( !object || object->size() != 1 ) {
      return "other";
   }
   auto const & [kind, change] = *object->begin();
   if ( auto const * changes = change.list() ) {
      std::string cause = "other";
      std::size_t const step = 1 + changes->size() / lookedAt;
      for ( std::size_t at = 0; at < changes->size(); at += step ) {
         auto next = causeWithoutKeys( ( *changes )[at] );
         if ( at > 0 && next != cause ) {
            return "several";
         }
         cause = std::move( next );
      }
      return cause;
   }
   if ( kind == "start" ) {
      return kind;
   }
   return change.object() ? withoutKeys( *change.object() ) : "other";
}

Metrics::Metrics() {
   static_assert( upTo.size() == bounds );
   for ( auto const & family : metricFamilies() ) {
      auto const metric = static_cast< Metric >( &family - metricFamilies().data() );
      if ( labelsOf( family ) == 0 && family.type != MetricFamily::Type::histogram ) {
         values_[metric][{}] = 0;
      }
   }
   phaseIs( Phase::waiting );
}

void Metrics::add( Metric metric, Labels const & labels, U64 more ) {
   Rex::sassert( familyOf( metric ).type == MetricFamily::Type::counter &&
                    labels.size() == labelsOf( familyOf( metric ) ),
                 "a counter with its labels" );
   values_[metric][labels] += static_cast< double >( more );
}

void Metrics::is( Metric metric, double value, Labels const & labels ) {
   Rex::sassert( familyOf( metric ).type == MetricFamily::Type::gauge &&
                    labels.size() == labelsOf( familyOf( metric ) ),
                 "a gauge with its labels" );
   values_[metric][labels] = value;
}

void Metrics::phaseIs( Phase phase ) {
   for ( std::string_view const name : phaseNames ) {
      is( Metric::phase, name == nameOf( phase ) ? 1 : 0, { std::string( name ) } );
   }
}

void Metrics::eventTook( Rex::Seconds time ) {
   ++durations_[static_cast< std::size_t >( std::ranges::lower_bound( upTo, time ) - upTo.begin() )];
   durationSum_ += time;
}

void Metrics::eventBegins( U32, Rex::Value const & what ) {
   ++events_[causeWithoutKeys( what )];
}

void Metrics::row( Row const & row ) {
   if ( row.isOperation() ) {
      if ( operations_.size() <= row.fap ) {
         operations_.resize( row.fap + 1u );
      }
      ++operations_[row.fap].counts[static_cast< std::size_t >( row.kind )][row.changed ? 1 : 0];
   } else if ( row.kind == Row::Kind::fault ) {
      add( Metric::faultsInjected, { std::string( row.reason.substr( 0, row.reason.find( ':' ) ) ) } );
   } else if ( row.kind == Row::Kind::gate ) {
      auto const known = gates_.find( row.function );
      ++( known == gates_.end() ? gates_[std::string( row.function )] : known->second );
   }
}

U64 Metrics::changingWrites() const {
   U64 all = 0;
   for ( Operations const & of : operations_ ) {
      all += of.counts[static_cast< std::size_t >( Row::Kind::write )][1];
   }
   return all;
}

std::string Metrics::text() const {
   Writer out;
   for ( auto const & family : metricFamilies() ) {
      auto const metric = static_cast< Metric >( &family - metricFamilies().data() );
      out.begin( family );
      switch ( metric ) {
      case Metric::events:
      case Metric::gatesClosed:
         for ( auto const & [label, count] : metric == Metric::events ? events_ : gates_ ) {
            out.sample( { label }, static_cast< double >( count ) );
         }
         break;
      case Metric::chipOperations:
         for ( std::size_t fap = 0; fap < operations_.size(); ++fap ) {
            for ( std::size_t kind = 0; kind < std::size( kinds ); ++kind ) {
               for ( std::size_t changed = 0; changed < 2; ++changed ) {
                  if ( auto const count = operations_[fap].counts[kind][changed] ) {
                     out.sample( { std::to_string( fap ), std::string( kinds[kind] ), changed ? "true" : "false" },
                                 static_cast< double >( count ) );
                  }
               }
            }
         }
         break;
      case Metric::eventDuration: {
         U64 count = 0;
         for ( std::size_t bucket = 0; bucket < durations_.size(); ++bucket ) {
            count += durations_[bucket];
            out.bucket( bucket < upTo.size() ? upTo[bucket] : INFINITY, count );
         }
         out.line( "_sum", "", numberText( durationSum_ ) );
         out.line( "_count", "", std::to_string( count ) );
         break;
      }
      default:
         if ( auto const values = values_.find( metric ); values != values_.end() ) {
            for ( auto const & [labels, value] : values->second ) {
               out.sample( labels, value );
            }
         }
         break;
      }
   }
   return std::move( out.text );
}

} // namespace Live
