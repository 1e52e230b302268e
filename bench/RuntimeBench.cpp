// What the reactor runtime costs: announcing a change against calling raw function pointers with the same arguments,
// and against a signal library; a use of a node against a plain count and a shared pointer.
#include "assert/Assert.h"
#include "corvo/Ptr.h"
#include "corvo/Publisher.h"
#include "rex/Type.h"

#include "Ratio.h"

#include <boost/signals2/signal.hpp>
#include <deque>
#include <memory>
#include <vector>

namespace {

class Watched : public Corvo::Node {
 public:
   Corvo::Publisher * publisher() const override { return &publisher_; }

 private:
   mutable Corvo::Publisher publisher_{ *this };
};

// What every callee does on both sides: so little that the way to it is what is measured. The sum shows afterwards that
// each was called as often as it should.
U64 calls = 0;
void handle( Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * ) {
   calls += static_cast< U64 >( attribute ) + ( slot == nullptr );
}

// Runs a side and ends the process if the callees were not called `times` times each.
template< class Work >
auto counted( std::size_t callees, Work work ) {
   return [=]( std::size_t times ) {
      calls = 0;
      work( times );
      Rex::sassert( calls == times * callees, "calls == times * callees" );
   };
}

struct Subscribed {
   Corvo::Ptr< Watched > node = Corvo::makePtr< Watched >();
   std::vector< Corvo::Subscriber > slots;
   explicit Subscribed( std::size_t count ) : slots( count ) {
      for ( auto & slot : slots ) {
         slot.dispatchIs( handle, this );
         node->publisher()->subscriberAdd( slot, false );
      }
   }
};

Bench::Side published( std::size_t count ) {
   auto const subscribed = std::make_shared< Subscribed >( count );
   return { "publisher", counted( count, [subscribed]( std::size_t times ) {
               Corvo::Publisher & publisher = *subscribed->node->publisher();
               for ( ; times; --times ) {
                  publisher.publish( 1 );
                  benchmark::ClobberMemory();
               }
            } ) };
}

Bench::Side functionPointers( std::size_t count ) {
   auto const subscribed = std::make_shared< Subscribed >( count );
   auto const pointers = std::make_shared< std::vector< Corvo::Subscriber::Dispatch > >( count, handle );
   return { "function pointers", counted( count, [subscribed, pointers]( std::size_t times ) {
               Corvo::Publisher * const publisher = subscribed->node->publisher();
               Corvo::Subscriber * const slot = subscribed->slots.data();
               for ( ; times; --times ) {
                  for ( auto const pointer : *pointers ) {
                     pointer( publisher, slot, 1, nullptr, nullptr );
                  }
                  benchmark::ClobberMemory();
               }
            } ) };
}

Bench::Side signals( std::size_t count ) {
   using Signal =
      boost::signals2::signal< void( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * ) >;
   auto const subscribed = std::make_shared< Subscribed >( count );
   auto const signal = std::make_shared< Signal >();
   for ( std::size_t i = 0; i < count; ++i ) {
      signal->connect( handle );
   }
   return { "Signals2", counted( count, [subscribed, signal]( std::size_t times ) {
               for ( ; times; --times ) {
                  ( *signal )( subscribed->node->publisher(), subscribed->slots.data(), 1, nullptr, nullptr );
                  benchmark::ClobberMemory();
               }
            } ) };
}

Bench::Ratio const ratios[] = {
   { "dispatch/1", published( 1 ), functionPointers( 1 ), 1.35 },
   { "dispatch/10", published( 10 ), functionPointers( 10 ), 1.3 },
   { "dispatch/1000", published( 1000 ), functionPointers( 1000 ), 3.2 },
   { "dispatch_by_signals/1", published( 1 ), signals( 1 ), 1.0 },
   { "dispatch_by_signals/10", published( 10 ), signals( 10 ), 1.0 },
   { "dispatch_by_signals/1000", published( 1000 ), signals( 1000 ), 1.0 },
};

// A use is taken and given back, 64 objects in turn: what passing a node by value costs.
constexpr std::size_t nodeCount = 64;

struct Plain {
   U32 users = 1;
};

void keep( void const * what ) {
   asm volatile( "" : : "r"( what ) : "memory" );
}

template< class Nodes >
auto copied( Nodes nodes ) {
   return [nodes]( std::size_t times ) {
      for ( ; times; --times ) {
         for ( auto const & node : *nodes ) {
            auto copy = node; // as a parameter is: a constant one would have to lie in memory
            keep( copy.get() );
         }
      }
   };
}

Bench::Side plainCounts() {
   auto const nodes = std::make_shared< std::vector< Plain > >( nodeCount );
   return { "plain counts", [nodes]( std::size_t times ) {
              for ( ; times; --times ) {
                 for ( auto & node : *nodes ) {
                    ++node.users;
                    keep( &node );
                    if ( --node.users == 0 ) {
                       std::abort();
                    }
                 }
              }
           } };
}

Bench::Side useCounts() {
   auto const nodes = std::make_shared< std::vector< Corvo::Ptr< Watched > > >();
   for ( std::size_t i = 0; i < nodeCount; ++i ) {
      nodes->push_back( Corvo::makePtr< Watched >() );
   }
   return { "use counts", copied( nodes ) };
}

Bench::Side sharedPointers() {
   auto const nodes = std::make_shared< std::vector< std::shared_ptr< Plain > > >();
   for ( std::size_t i = 0; i < nodeCount; ++i ) {
      nodes->push_back( std::make_shared< Plain >() );
   }
   return { "shared_ptr", copied( nodes ) };
}

Bench::Ratio const useRatios[] = {
   { "use_counts_64", useCounts(), plainCounts(), 1.3 },
   { "use_counts_64_by_shared_ptr", useCounts(), sharedPointers(), 1.0 },
};

} // namespace
