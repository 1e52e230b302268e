#include "inspection/ChainSteps.h"

#include "inspection/NamesAsTyped.h"
#include "inspection/files/Json.h"

#include <algorithm>

namespace Inspection {

namespace {

using Simulator::Row;

constexpr std::size_t mostBefores = 2;

void addTo( std::string & key, std::string_view text ) {
   key += text;
   key += '\0';
}

// What a write left behind, and where it came from.
std::string wordsKeyOf( Row const & row ) {
   std::string key( row.source );
   addTo( key, row.cause );
   addTo( key, row.table );
   addTo( key, std::to_string( row.variant ) + " " + std::to_string( row.scope == Row::Scope::core ? row.core : -1 ) );
   for ( U32 const word : row.words ) {
      key += std::to_string( word ) + " ";
   }
   return key;
}

// At places of a table.
bool isAccess( Row const & row ) {
   return row.isOfChip() && row.kind != Row::Kind::control;
}

// Rows with the same key are one step.
std::string changesKeyOf( Row const & row, std::vector< FieldChange > const & changes ) {
   std::string key = std::to_string( static_cast< int >( row.kind ) );
   addTo( key, row.cause );
   addTo( key, row.function );
   addTo( key, row.source );
   switch ( row.kind ) {
   case Row::Kind::write:
   case Row::Kind::read:
   case Row::Kind::fault:
      addTo( key, row.table );
      addTo( key, row.reason );
      addTo( key,
             std::to_string( row.variant ) + " " + std::to_string( row.scope == Row::Scope::core ? row.core : -1 ) );
      addTo( key, row.changed ? "changed" : "" );
      for ( FieldChange const & change : changes ) {
         addTo( key, change.field->name );
         addTo( key, change.after );
      }
      break;
   case Row::Kind::control:
      addTo( key, std::to_string( row.control ) + ( row.changed ? " changed " : " " ) + std::to_string( row.value ) );
      break;
   case Row::Kind::gate:
      addTo( key, row.reason );
      break;
   case Row::Kind::publish:
      addTo( key, row.key ? row.path : row.path.substr( 0, row.path.rfind( '/' ) ) );
      addTo( key, row.attribute );
      addTo( key, toJson( *row.published, 0 ) );
      break;
   }
   return key;
}

void addBefore( ChainStep::Change & change, U16 fap, std::optional< std::string > const & before ) {
   auto & here = change.onFap[fap];
   if ( !before ) {
      return;
   }
   change.addBefore( *before );
   if ( here.size() <= mostBefores && std::ranges::find( here, *before ) == here.end() ) {
      here.push_back( *before );
   }
}

ChainStep newStep( Row const & row, std::vector< FieldChange > const & changes ) {
   ChainStep step{ .kind = row.kind,
                   .cause = std::string( row.cause ),
                   .function = std::string( row.function ),
                   .source = std::string( row.source ),
                   .seq = row.seq,
                   .changed = row.changed };
   step.reason = row.reason;
   if ( isAccess( row ) ) {
      step.table = Catalogue::table( row.table );
      step.variant = row.variant;
      step.isArrayed = row.layout && isArrayed( *row.layout );
      step.isMemory = row.entry.has_value();
      if ( row.scope == Row::Scope::core ) {
         step.core = row.core;
      }
      for ( FieldChange const & change : changes ) {
         step.changes.push_back( { .name = change.field->name, .width = change.field->width, .after = change.after } );
      }
   } else if ( row.kind == Row::Kind::control ) {
      step.control = row.control;
      step.changes.push_back( { .width = 32, .after = std::to_string( row.value ) } );
   } else if ( row.kind == Row::Kind::publish ) {
      step.path = row.key ? row.path : row.path.substr( 0, row.path.rfind( '/' ) );
      step.attribute = row.attribute;
      step.before = *row.publishedBefore;
      step.after = *row.published;
   }
   return step;
}

} // namespace

void ChainStep::Change::addBefore( std::string const & value ) {
   if ( std::ranges::find( befores, value ) != befores.end() ) {
      return;
   }
   if ( befores.size() < mostBefores ) {
      befores.push_back( value );
   } else {
      hasMoreBefores = true;
   }
}

std::optional< ChainStep::Change > ChainStep::Change::onFaps( std::set< U16 > const & those ) const {
   std::optional< Change > there;
   for ( auto const & [fap, some] : onFap ) {
      if ( those.contains( fap ) ) {
         if ( !there ) {
            there.emplace( Change{ .name = name, .width = width, .after = after } );
         }
         std::ranges::for_each( some, [&]( std::string const & value ) { there->addBefore( value ); } );
      }
   }
   return there;
}

ChainStep & ChainSteps::stepOf( Row const & row, std::vector< FieldChange > const & changes ) {
   bool const isChange = row.kind == Row::Kind::write && !changes.empty();
   std::string const wordsKey = isChange ? wordsKeyOf( row ) : "";
   if ( auto const known = byWords_.find( wordsKey ); isChange && known != byWords_.end() ) {
      return steps_[known->second];
   }
   auto const [known, isNew] = byChanges_.emplace( changesKeyOf( row, changes ), steps_.size() );
   if ( isNew ) {
      steps_.push_back( newStep( row, changes ) );
      if ( isChange ) {
         byWords_.emplace( wordsKey, known->second );
      }
   }
   return steps_[known->second];
}

void ChainSteps::add( Row const & row, std::vector< FieldChange > const & changes ) {
   ChainStep & step = stepOf( row, changes );
   ++step.times;
   switch ( row.kind ) {
   case Row::Kind::read:
   case Row::Kind::write:
   case Row::Kind::fault:
      step.places[row.fap][static_cast< U32 >( row.array )].insert( row.entry.value_or( 0 ) );
      for ( FieldChange const & change : changes ) {
         auto told = std::ranges::find( step.changes, change.field->name, &ChainStep::Change::name );
         if ( told == step.changes.end() ) {
            // Another entry had this value already. What was found in the same state no longer stands for both.
            std::erase_if( byChanges_, [&]( auto const & it ) { return &steps_[it.second] == &step; } );
            told = step.changes.insert(
               told, { .name = change.field->name, .width = change.field->width, .after = change.after } );
         }
         addBefore( *told, row.fap, change.before );
      }
      break;
   case Row::Kind::control:
      step.places[row.fap];
      addBefore( step.changes.front(),
                 row.fap,
                 row.valueBefore ? std::optional( std::to_string( *row.valueBefore ) ) : std::nullopt );
      break;
   case Row::Kind::gate:
      if ( row.isOfFap ) {
         step.faps.insert( row.fap );
      }
      break;
   case Row::Kind::publish:
      if ( step.names.size() < ChainStep::mostNames ) {
         step.names.emplace_back( row.key ? *row.key : row.path.substr( row.path.rfind( '/' ) + 1 ) );
      }
      break;
   }
}

bool isBitSet( std::string const & value, U32 bit ) {
   std::size_t const digit = bit / 4; // from the right
   if ( digit + 2 >= value.size() ) { // "0x"
      return false;
   }
   char const letter = value[value.size() - 1 - digit];
   int const number = letter <= '9' ? letter - '0' : letter - 'a' + 10;
   return ( number >> ( bit % 4 ) & 1 ) != 0;
}

std::vector< FieldChange > changesOf( Row const & row, std::string const & field, std::optional< U32 > bit ) {
   if ( !row.changed || !row.layout ) {
      return {};
   }
   auto changes = fieldChanges( row );
   std::erase_if( changes, [&]( FieldChange const & change ) {
      bool const isAsked = field.empty() || field == change.field->name;
      bool const isBit = !bit || !change.before || isBitSet( *change.before, *bit ) != isBitSet( change.after, *bit );
      return !isAsked || !isBit || !change.isChange();
   } );
   return changes;
}

} // namespace Inspection
