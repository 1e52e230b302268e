#include "PrometheusText.h"

#include "Folder.h"

#include <cmath>
#include <regex>
#include <set>
#include <stdexcept>

namespace {

using Labels = std::map< std::string, std::string >;

class Reader {
 public:
   std::map< std::string, PrometheusFamily > read( std::string const & text ) {
      if ( text.empty() || text.back() != '\n' ) {
         throw std::runtime_error( "the last line has no end" );
      }
      for ( std::string const & line : linesOf( text ) ) {
         line_ = &line;
         if ( line.starts_with( "#" ) ) {
            comment( line );
         } else {
            sample( line );
         }
      }
      endFamily();
      return families_;
   }

 private:
   [[noreturn]] void refuse( std::string const & why ) const { throw std::runtime_error( why + ": " + *line_ ); }

   // "# HELP name text", then "# TYPE name type", then all samples of it: each family once, and as one group.
   void comment( std::string const & line ) {
      static std::regex const form( R"(# (HELP|TYPE) ([a-zA-Z_:][a-zA-Z0-9_:]*) (.*))" );
      std::smatch parts;
      if ( !std::regex_match( line, parts, form ) ) {
         refuse( "neither HELP nor TYPE" );
      }
      if ( parts[1] == "HELP" ) {
         endFamily();
         name_ = parts[2];
         if ( !families_.emplace( name_, PrometheusFamily{ {}, parts[3], {} } ).second ) {
            refuse( "told twice" );
         }
         if ( parts[3].length() == 0 || std::regex_search( parts[3].str(), std::regex( R"(\\[^\\n])" ) ) ) {
            refuse( "a wrong help text" );
         }
         return;
      }
      auto & family = families_[name_];
      if ( parts[2] != name_ || !family.type.empty() || !family.samples.empty() ) {
         refuse( "TYPE stands elsewhere than behind its HELP" );
      }
      family.type = parts[3];
      if ( !std::set< std::string >{ "counter", "gauge", "histogram" }.contains( family.type ) ) {
         refuse( "no such type" );
      }
      if ( ( family.type == "counter" ) != name_.ends_with( "_total" ) ) {
         refuse( "counters, and they alone, end in _total" );
      }
   }

   void sample( std::string const & line ) {
      static std::regex const form( R"re(([a-zA-Z_:][a-zA-Z0-9_:]*)(\{((?:[^"}]|"(?:[^"\\]|\\.)*")*)\})? ([^ ]+))re" );
      std::smatch parts;
      if ( !std::regex_match( line, parts, form ) ) {
         refuse( "no sample" );
      }
      auto & family = families_[name_];
      if ( family.type.empty() ) {
         refuse( "a sample without its type" );
      }
      if ( parts[2].matched && parts[3].length() == 0 ) {
         refuse( "braces without labels" );
      }
      auto labels = labelsOf( parts[3] );
      double const value = number( parts[4] );
      if ( !family.samples.emplace( parts[1].str() + parts[2].str(), value ).second ) {
         refuse( "a sample told twice" );
      }
      if ( family.type == "counter" && !( value >= 0 ) ) {
         refuse( "a counter below 0" );
      }
      if ( family.type == "histogram" ) {
         histogram( parts[1], labels, value );
      } else if ( parts[1] != name_ || labels.contains( "le" ) ) {
         refuse( "stands below " + name_ );
      }
      std::set< std::string > names;
      for ( auto const & label : labels ) {
         names.insert( label.first );
      }
      if ( family.type != "histogram" && !labels_.empty() && !family.samples.empty() && names != labels_ &&
           family.samples.size() > 1 ) {
         refuse( "other labels than its neighbours" );
      }
      labels_ = names;
   }

   Labels labelsOf( std::string const & text ) const {
      static std::regex const form( R"re(([a-zA-Z_][a-zA-Z0-9_]*)="((?:[^"\\]|\\["\\n])*)"(,|$))re" );
      Labels labels;
      std::size_t at = 0;
      for ( std::sregex_iterator it( text.begin(), text.end(), form ), end; it != end; ++it ) {
         if ( static_cast< std::size_t >( it->position() ) != at || !labels.emplace( ( *it )[1], ( *it )[2] ).second ) {
            refuse( "wrong labels" );
         }
         at += static_cast< std::size_t >( it->length() );
      }
      if ( at != text.size() || text.ends_with( "," ) ) {
         refuse( "wrong labels" );
      }
      return labels;
   }

   double number( std::string const & text ) const {
      if ( text == "+Inf" || text == "-Inf" || text == "NaN" ) {
         return text == "NaN" ? NAN : text == "+Inf" ? INFINITY : -INFINITY;
      }
      static std::regex const form( R"(-?[0-9]+(\.[0-9]+)?(e[-+]?[0-9]+)?)" );
      if ( !std::regex_match( text, form ) ) {
         refuse( "no number" );
      }
      return std::stod( text );
   }

   void histogram( std::string const & name, Labels const & labels, double value ) {
      if ( name == name_ + "_bucket" ) {
         double const bound = labels.contains( "le" ) ? number( labels.at( "le" ) ) : NAN;
         if ( !( bound > bound_ ) || value < buckets_ ) {
            refuse( "buckets don't rise" );
         }
         bound_ = bound;
         buckets_ = value;
      } else if ( name == name_ + "_sum" ) {
         hasSum_ = true;
      } else if ( name == name_ + "_count" ) {
         count_ = value;
      } else {
         refuse( "no part of a histogram" );
      }
   }

   void endFamily() {
      if ( name_.empty() ) {
         return;
      }
      if ( families_[name_].type.empty() ) {
         throw std::runtime_error( name_ + " has no type" );
      }
      if ( families_[name_].type == "histogram" && ( !hasSum_ || count_ != buckets_ || bound_ != INFINITY ) ) {
         throw std::runtime_error( name_ + " is no whole histogram" );
      }
      bound_ = -INFINITY;
      buckets_ = 0;
      count_ = -1;
      hasSum_ = false;
      labels_.clear();
   }

   std::map< std::string, PrometheusFamily > families_;
   std::string name_; // of the family that is told
   std::string const * line_ = nullptr;
   std::set< std::string > labels_; // of the sample before
   double bound_ = -INFINITY;
   double buckets_ = 0;
   double count_ = -1;
   bool hasSum_ = false;
};

} // namespace

std::map< std::string, PrometheusFamily > prometheusText( std::string const & text ) {
   return Reader().read( text );
}
