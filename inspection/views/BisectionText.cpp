#include "inspection/views/BisectionText.h"

#include "inspection/FoldedWrites.h"
#include "inspection/NamesAsTyped.h"
#include "inspection/views/ReplayText.h"

namespace Inspection {

namespace {

using Rex::Value;

constexpr std::size_t fewTurns = 8;

std::string eventName( Turn const & turn ) {
   return turn.event == 0 ? "the start" : "event " + std::to_string( turn.event );
}

// "FAP 0 [3]", "FAP 0 variant 1 0-7 9"
std::string placesOf( std::vector< Holding const * > const & holdings ) {
   std::map< std::tuple< U16, U8, U32 >, std::vector< U32 > > entries;
   for ( Holding const * const it : holdings ) {
      entries[{ it->fap, it->layout->variant, it->array }].push_back( it->entry );
   }
   Catalogue::Layout const & layout = *holdings.front()->layout;
   std::string text;
   std::optional< U16 > fap;
   for ( auto const & [of, numbers] : entries ) {
      auto const [number, variant, array] = of;
      text += text.empty() ? "" : fap == number ? "," : "; "; // each part begins with a space
      text += fap == number ? "" : "FAP " + std::to_string( number );
      text += variant ? " variant " + std::to_string( variant ) : "";
      text += isArrayed( layout ) ? " [" + std::to_string( array ) + "]" : "";
      text += layout.entries ? " " + ranges( numbers ) : "";
      fap = number;
   }
   return text;
}

// Those that one write, or the same place in the source on the same event, has turned, together.
std::vector< std::vector< Holding const * > > byTurn( std::vector< Holding > const & holdings,
                                                      TurnPtr Holding::*turn ) {
   std::vector< std::vector< Holding const * > > groups;
   for ( Holding const & it : holdings ) {
      auto const isAlike = [&]( std::vector< Holding const * > const & group ) {
         auto const & a = group.front()->*turn;
         auto const & b = it.*turn;
         return !a == !b && ( !a || ( a->event == b->event && a->source == b->source && a->cause == b->cause &&
                                      a->other == b->other ) );
      };
      auto const group = std::ranges::find_if( groups, isAlike );
      ( group == groups.end() ? groups.emplace_back() : *group ).push_back( &it );
   }
   return groups;
}

void showTurn( std::ostream & out, Turn const & turn, Style const & style ) {
   out << "  " << style.strong( turn.function ) << "  " << style.faint( turn.source + "  on " + turn.cause ) << '\n';
}

std::string headOf( Bisection const & bisection ) {
   if ( bisection.holdings.empty() ) {
      return bisection.former.empty() ? "never held" : "holds nowhere at the end";
   }
   std::string const where = counted( bisection.holdings.size(), "entry", "entries" );
   auto const & first = bisection.holdings.front().since;
   auto const & last = bisection.holdings.back().since;
   if ( !last ) {
      return "holds since before the start in " + where;
   }
   if ( first && first->event == last->event ) {
      return "holds since " + eventName( *last ) + " in " + where;
   }
   return "holds in " + where + ", the latest since " + eventName( *last );
}

Value turnValue( TurnPtr const & turn, char const * other ) {
   if ( !turn ) {
      return {};
   }
   return Value::Object{ { "event", turn->event },
                         { "what", turn->what },
                         { "seq", turn->seq },
                         { "function", turn->function },
                         { "source", turn->source },
                         { "cause", turn->cause },
                         { other, turn->other } };
}

Value holdingsValue( std::vector< Holding > const & holdings ) {
   Value::List list;
   for ( Holding const & it : holdings ) {
      Value::Object one{ { "fap", it.fap },
                         { "variant", it.layout->variant },
                         { "array", it.array },
                         { "entry", it.layout->entries ? Value( it.entry ) : Value() },
                         { "since", turnValue( it.since, "before" ) } };
      if ( it.until ) {
         one["until"] = turnValue( it.until, "after" );
      }
      list.push_back( one );
   }
   return list;
}

} // namespace

void showBisection( std::ostream & out, Bisection const & bisection, bool all, Style const & style ) {
   showRemarks( out, bisection.remarks, style );
   out << style.title( bisection.condition.text() ) << "  "
       << ( bisection.holdings.empty() ? style.before( headOf( bisection ) ) : style.after( headOf( bisection ) ) )
       << style.faint( "  (" + counted( bisection.events, "event", "events" ) + ")" ) << '\n';
   std::size_t shown = 0;
   std::size_t left = 0;
   auto const isShown = [&] {
      left += shown >= fewTurns && !all;
      return shown++ < fewTurns || all;
   };
   auto const holding = byTurn( bisection.holdings, &Holding::since );
   for ( auto group = holding.rbegin(); group != holding.rend(); ++group ) {
      if ( !isShown() ) {
         continue;
      }
      auto const & since = group->front()->since;
      out << '\n'
          << style.strong( !since
                              ? "since before the start"
                              : "since " + eventName( *since ) + ( since->event ? ": " + since->what : std::string() ) )
          << '\n';
      if ( since ) {
         showTurn( out, *since, style );
      }
      out << "    " << style.place( placesOf( *group ) );
      if ( since ) {
         out << "  " << style.before( readable( since->other ) ) << style.faint( " → " )
             << style.after( readable( bisection.condition.value ) );
      }
      out << '\n';
   }
   for ( auto const & group : byTurn( bisection.former, &Holding::until ) ) {
      if ( !isShown() ) {
         continue;
      }
      Holding const & it = *group.front();
      out << '\n'
          << style.strong( "until " + eventName( *it.until ) + ( it.until->event ? ": " + it.until->what : "" ) )
          << style.faint( it.since ? "  since " + eventName( *it.since ) : "  since before the start" ) << '\n';
      showTurn( out, *it.until, style );
      out << "    " << style.place( placesOf( group ) ) << "  " << style.after( readable( bisection.condition.value ) )
          << style.faint( " → " ) << style.before( readable( it.until->other ) ) << '\n';
   }
   if ( left > 0 ) {
      out << "\n... and " << counted( left, "more", "more" ) << "; --all shows them\n";
   }
}

Value bisectionValue( Bisection const & bisection ) {
   return Value::Object{ { "table", std::string( bisection.condition.field.table->name ) },
                         { "field", bisection.condition.field.field },
                         { "value", bisection.condition.value },
                         { "events", bisection.events },
                         { "holds", holdingsValue( bisection.holdings ) },
                         { "held", holdingsValue( bisection.former ) } };
}

} // namespace Inspection
