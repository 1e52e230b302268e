#include "inspection/views/VerdictsText.h"

namespace Inspection {

namespace {

char const * kindText( Verdict::Kind kind ) {
   return kind == Verdict::Kind::fine ? "fine" : kind == Verdict::Kind::fault ? "fault" : "not served";
}

} // namespace

void showVerdicts( std::ostream & out, std::vector< Verdict > const & verdicts, Style const & style ) {
   if ( verdicts.empty() ) {
      out << "the plug-in offers no verification\n";
   }
   Columns columns;
   for ( Verdict const & it : verdicts ) {
      std::vector< std::string > cells{ "FAP " + std::to_string( it.fap ), it.operation };
      switch ( it.kind ) {
      case Verdict::Kind::fine:
         cells.push_back( style.after( "fine" ) );
         cells.push_back( counted( it.reads, "entry", "entries" ) + " read" );
         break;
      case Verdict::Kind::fault:
         cells.push_back( style.before( "fault" ) );
         cells.push_back( it.table + " " + style.place( it.place ) );
         break;
      case Verdict::Kind::notServed:
         cells.push_back( style.faint( "not served" ) );
         cells.push_back( style.faint( "chip initialisation has done nothing here" ) );
         break;
      }
      columns.row( cells );
   }
   columns.print( out );
   for ( Verdict const & it : verdicts ) {
      if ( it.kind == Verdict::Kind::fault ) {
         out << '\n' << "FAP " << it.fap << ": " << it.what << '\n';
      }
   }
}

Rex::Value verdictsValue( std::vector< Verdict > const & verdicts ) {
   Rex::Value::List list;
   for ( Verdict const & it : verdicts ) {
      Rex::Value::Object one;
      one["fap"] = it.fap;
      one["operation"] = it.operation;
      one["verdict"] = kindText( it.kind );
      one["reads"] = it.reads;
      if ( it.kind == Verdict::Kind::fault ) {
         one["table"] = it.table;
         one["place"] = it.place;
         one["what"] = it.what;
      }
      list.emplace_back( std::move( one ) );
   }
   return list;
}

} // namespace Inspection
