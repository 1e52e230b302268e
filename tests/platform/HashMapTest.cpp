// HashMap2018: walks under every mutation.
#include "corvo/Ptr.h"
#include "rex/HashMap2018.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

namespace {

struct Value : Corvo::Node {
   int number;
   std::function< void() > atEnd;
   explicit Value( int number_ ) : number( number_ ) {}
   ~Value() override {
      if ( atEnd ) {
         atEnd();
      }
   }
};
using CountedMap = Rex::HashMap2018< std::string, Corvo::Ptr< Value > >;

void fill( CountedMap & map, std::initializer_list< char const * > keys ) {
   for ( auto const * key : keys ) {
      map.set( key, Corvo::makePtr< Value >( static_cast< int >( map.size() ) ) );
   }
}
std::string keys( CountedMap const & map ) {
   std::string all;
   for ( auto const & [key, value] : map ) {
      all += key;
   }
   return all;
}
// Walks the map, and runs `at` when it stands on `key`. Returns the keys that it met.
std::string walk( CountedMap const & map, std::string const & on, std::function< void() > const & at ) {
   std::string met;
   for ( auto const & [key, value] : map ) {
      met += key;
      EXPECT_TRUE( value );
      if ( key == on ) {
         at();
      }
   }
   return met;
}

TEST( HashMap, KeepsTheOrderOfInsertion ) {
   CountedMap map;
   fill( map, { "c", "a", "b" } );
   map.set( "a", Corvo::makePtr< Value >( 7 ) ); // replaced: keeps its place
   EXPECT_EQ( keys( map ), "cab" );
   map.del( "c" );
   fill( map, { "c" } );
   EXPECT_EQ( keys( map ), "abc" );
   EXPECT_EQ( map.get( "a" )->number, 7 );
   EXPECT_EQ( map.get( "x" ), nullptr );
   EXPECT_EQ( map.del( "x" ), nullptr );
   EXPECT_TRUE( map.has( "b" ) );
   EXPECT_EQ( map.size(), 3U );
}

TEST( HashMap, EmptyMapCanBeWalkedAndAsked ) {
   CountedMap map;
   EXPECT_EQ( keys( map ), "" );
   EXPECT_FALSE( map.has( "a" ) );
   EXPECT_EQ( map.get( "a" ), nullptr );
   EXPECT_EQ( map.del( "a" ), nullptr );
   map.clear();
   EXPECT_TRUE( map.empty() );
}

TEST( HashMapWalk, MayRemoveTheEntryItStandsOn ) {
   CountedMap map;
   fill( map, { "a", "b", "c" } );
   EXPECT_EQ( walk( map, "b", [&] { map.del( "b" ); } ), "abc" );
   EXPECT_EQ( keys( map ), "ac" );
}

TEST( HashMapWalk, DoesNotMeetWhatIsRemovedAheadOfIt ) {
   CountedMap map;
   fill( map, { "a", "b", "c", "d" } );
   EXPECT_EQ( walk( map,
                    "a",
                    [&] {
                       map.del( "b" );
                       map.del( "d" );
                    } ),
              "ac" );
}

TEST( HashMapWalk, MayRemoveWhatItHasMet ) {
   CountedMap map;
   fill( map, { "a", "b", "c" } );
   EXPECT_EQ( walk( map, "b", [&] { map.del( "a" ); } ), "abc" );
   EXPECT_EQ( keys( map ), "bc" );
}

TEST( HashMapWalk, DoesNotMeetWhatIsAddedAfterItBegan ) {
   CountedMap map;
   fill( map, { "a", "b" } );
   EXPECT_EQ( walk( map,
                    "a",
                    [&] {
                       fill( map, { "c", "d", "e", "f", "g", "h", "i", "j" } ); // the map grows under the walk
                       map.del( "b" );
                       fill( map, { "b" } ); // a new entry under an old key
                    } ),
              "a" );
   EXPECT_EQ( keys( map ), "acdefghijb" );
}

TEST( HashMapWalk, MeetsTheNewValueOfAnEntryThatIsReplaced ) {
   CountedMap map;
   fill( map, { "a", "b" } );
   int met = 0;
   for ( auto const & [key, value] : map ) {
      map.set( "b", Corvo::makePtr< Value >( 9 ) );
      met = value->number;
   }
   EXPECT_EQ( met, 9 );
}

TEST( HashMapWalk, EndsWhereTheMapIsCleared ) {
   CountedMap map;
   fill( map, { "a", "b", "c" } );
   EXPECT_EQ( walk( map, "b", [&] { map.clear(); } ), "ab" );
   EXPECT_TRUE( map.empty() );
   fill( map, { "d" } );
   EXPECT_EQ( keys( map ), "d" );
}

TEST( HashMapWalk, SurvivesTheDestructionOfTheMap ) {
   U32 const before = Corvo::Node::liveCount();
   auto map = std::make_unique< CountedMap >();
   fill( *map, { "a", "b", "c" } );
   std::string met;
   for ( auto const & [key, value] : *map ) {
      met += key;
      map = nullptr;
      EXPECT_TRUE( value ); // the element stays alive in the loop's body
   }
   EXPECT_EQ( met, "a" );
   EXPECT_EQ( Corvo::Node::liveCount(), before );
}

TEST( HashMapWalk, WalksNest ) {
   CountedMap map;
   fill( map, { "a", "b", "c" } );
   std::string met;
   for ( auto const & [outer, outerValue] : map ) {
      for ( auto const & [inner, innerValue] : map ) {
         met += outer + inner + " ";
         map.del( "b" );
      }
   }
   EXPECT_EQ( met, "aa ac ca cc " );
}

TEST( HashMapWalk, RemovingReleasesTheValueAtOnce ) {
   CountedMap map;
   fill( map, { "a", "b" } );
   U32 const before = Corvo::Node::liveCount();
   walk( map, "a", [&] {
      map.del( "b" );
      EXPECT_EQ( Corvo::Node::liveCount(), before - 1 );
   } );
}

TEST( HashMapDeath, AnIteratorOnARemovedEntryIsNotRead ) {
   CountedMap map;
   fill( map, { "a" } );
   auto const it = map.begin();
   map.del( "a" );
   EXPECT_DEATH( static_cast< void >( *it ), "Assertion `iter_' failed" );
   EXPECT_DEATH( static_cast< void >( *map.end() ), "Assertion `iter_' failed" );
}

TEST( HashMap, ValuesMayChangeItWhileTheyGo ) {
   auto map = std::make_unique< CountedMap >();
   fill( *map, { "a", "b", "c" } );
   map->get( "a" )->atEnd = [&] {
      EXPECT_FALSE( map->has( "a" ) );
      fill( *map, { "d" } );
   };
   map->del( "a" );
   EXPECT_EQ( keys( *map ), "bcd" );

   map->get( "b" )->atEnd = [&] { EXPECT_EQ( map->get( "b" )->number, 5 ); }; // the new value stands already
   map->set( "b", Corvo::makePtr< Value >( 5 ) );

   map->get( "c" )->atEnd = [&] { map = nullptr; };
   map->set( "c", nullptr );
   EXPECT_FALSE( map );
}

TEST( HashMap, ClearReleasesInOrderAndTakesWhatComesInMeanwhile ) {
   CountedMap map;
   fill( map, { "a", "b" } );
   std::string gone;
   map.get( "a" )->atEnd = [&] {
      gone += "a";
      fill( map, { "c" } );
   };
   map.get( "b" )->atEnd = [&] { gone += "b"; };
   map.clear();
   EXPECT_EQ( gone, "ab" );
   EXPECT_TRUE( map.empty() );
}

// Long random runs against a plain model, so that collisions, gaps and growth all come up.
TEST( HashMap, AgreesWithAPlainModel ) {
   std::mt19937 random( 5 ); // NOLINT(cert-msc51-cpp)
   for ( U32 const range : { 3U, 20U, 300U } ) {
      Rex::HashMap2018< U32, U32 > map;
      std::map< U32, U32 > model;
      std::vector< U32 > order;
      for ( U32 step = 0; step < 20'000; ++step ) {
         U32 const key = random() % range;
         if ( random() % 2 ) {
            map.set( key, step );
            if ( !model.contains( key ) ) {
               order.push_back( key );
            }
            model[key] = step;
         } else {
            U32 const removed = map.del( key );
            ASSERT_EQ( removed, model.contains( key ) ? model[key] : 0 );
            model.erase( key );
            std::erase( order, key );
         }
         ASSERT_EQ( map.size(), model.size() );
         if ( step % 97 == 0 ) {
            std::vector< U32 > walked;
            for ( auto const & [each, value] : map ) {
               walked.push_back( each );
               ASSERT_EQ( value, model[each] );
               ASSERT_EQ( map.get( each ), value );
            }
            ASSERT_EQ( walked, order );
         }
      }
   }
}

// Keys in the patterns that ids come in, far more than one line of the table takes. Each key is met at its first or
// one of its next places, or this takes minutes.
TEST( HashMap, KeysOfAnyPatternAreFoundAndRemoved ) {
   std::vector< std::function< U64( U64 ) > > const patterns{
      []( U64 i ) { return i; },
      []( U64 i ) { return i * 2; },
      []( U64 i ) { return i * 17; },
      []( U64 i ) { return i << 12; },
      []( U64 i ) { return i << 32; },
      []( U64 i ) { return i << 44; },
      []( U64 i ) { return i % 2 << 40 | i / 2; },
      []( U64 i ) { return i % 8 << 24 | i / 8; },
   };
   constexpr U64 count = 60'000;
   for ( auto const & keyOf : patterns ) {
      Rex::HashMap2018< U64, U64 > map;
      for ( U64 i = 0; i < count; ++i ) {
         map.set( keyOf( i ), i );
      }
      for ( U64 i = 0; i < count; i += 3 ) {
         ASSERT_EQ( map.del( keyOf( i ) ), i );
      }
      for ( U64 i = 0; i < count; ++i ) {
         ASSERT_EQ( map.get( keyOf( i ) ), i % 3 ? i : 0 );
         ASSERT_EQ( map.has( keyOf( i ) ), i % 3 != 0 );
      }
   }
}

} // namespace
