// Feeds every entry what is in its corpus, and what comes of it by small changes: the same ones each time.
//
// A file that somebody found goes into corpus/<entry>/, and is fed here from then on. More changes:
//
//    L3SM_FUZZ_ROUNDS=10000 build/sanitize/bin/test-fuzz --gtest_filter='*journal'
#include "Entries.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace {

namespace fs = std::filesystem;

using Random = std::mt19937;

std::size_t below( Random & random, std::size_t limit ) {
   return limit == 0 ? 0 : random() % limit; // alike with every library, unlike a distribution
}

// What numbers go wrong with.
std::vector< std::string > const oddTexts{ "0",
                                           "-1",
                                           "255",
                                           "256",
                                           "65535",
                                           "65536",
                                           "4294967295",
                                           "4294967296",
                                           "18446744073709551615",
                                           "1e9",
                                           "null",
                                           "[]",
                                           "{}",
                                           "\"\"",
                                           "\"\\u0000\\u001b[31m\"",
                                           "true" };

// A stretch of digits, letters or what stands between quotes.
std::pair< std::size_t, std::size_t > wordAt( std::string const & text, std::size_t at ) {
   auto const isWord = [&]( std::size_t i ) {
      return std::isalnum( static_cast< unsigned char >( text[i] ) ) || text[i] == '_';
   };
   std::size_t begin = at;
   std::size_t end = at;
   while ( begin > 0 && isWord( begin - 1 ) ) {
      --begin;
   }
   while ( end < text.size() && isWord( end ) ) {
      ++end;
   }
   return { begin, end - begin };
}

std::string changed( std::string text, std::string const & other, Random & random ) {
   for ( std::size_t times = 1 + below( random, 3 ); times > 0; --times ) {
      std::size_t const at = below( random, text.size() );
      switch ( below( random, 7 ) ) {
      case 0: // a bit
         if ( !text.empty() ) {
            text[at] = static_cast< char >( text[at] ^ ( 1 << below( random, 8 ) ) );
         }
         break;
      case 1: // cut
         text.resize( at );
         break;
      case 2: // something left out
         text.erase( at, 1 + below( random, 40 ) );
         break;
      case 3: { // something twice
         std::string const part = text.substr( at, 1 + below( random, 80 ) );
         text.insert( at, part );
         break;
      }
      case 4: { // a part of another file
         std::string const part = other.substr( below( random, other.size() ), 1 + below( random, 80 ) );
         text.insert( at, part );
         break;
      }
      default: { // another word or number
         auto const [begin, count] = wordAt( text, at );
         text.replace( begin, count, oddTexts[below( random, oddTexts.size() )] );
         break;
      }
      }
   }
   return text;
}

std::vector< std::string > corpusOf( std::string const & entry ) {
   std::set< fs::path > files;
   for ( auto const & file : fs::directory_iterator( L3SM_SOURCE_DIR "/tests/fuzz/corpus/" + entry ) ) {
      files.insert( file.path() );
   }
   std::vector< std::string > texts;
   for ( auto const & file : files ) {
      std::ostringstream text;
      text << std::ifstream( file, std::ios::binary ).rdbuf();
      texts.push_back( text.str() );
   }
   return texts;
}

class Corpus : public testing::TestWithParam< Fuzz::Entry > {};

TEST_P( Corpus, isReadOrRefused ) {
   auto const texts = corpusOf( GetParam().name );
   ASSERT_FALSE( texts.empty() );
   char const * const asked = std::getenv( "L3SM_FUZZ_ROUNDS" );
   std::size_t const rounds = asked ? std::stoul( asked ) : 60;
   auto const last = fs::path( testing::TempDir() ) / ( "fuzz-" + std::string( GetParam().name ) );
   Random random( 20 );
   for ( auto const & text : texts ) {
      GetParam().feed( text );
      for ( std::size_t round = 0; round < rounds; ++round ) {
         std::string const input = changed( text, texts[below( random, texts.size() )], random );
         std::ofstream( last, std::ios::binary ) << input; // if it ends here
         GetParam().feed( input );
      }
   }
   fs::remove( last );
}

INSTANTIATE_TEST_SUITE_P( All, Corpus, testing::ValuesIn( Fuzz::entries() ), []( auto const & entry ) {
   return std::string( entry.param.name );
} );

} // namespace
