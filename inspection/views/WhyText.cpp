#include "inspection/views/WhyText.h"

#include "inspection/FunctionTables.h"
#include "inspection/ServedFaps.h"
#include "inspection/files/Json.h"
#include "inspection/views/ChainStepText.h"
#include "inspection/views/Lines.h"

#include <algorithm>

namespace Inspection {

namespace {

using Kind = WhySubject::Kind;
using Simulator::Row;

constexpr std::size_t mostSteps = 8; // of one event
constexpr std::size_t mostGates = 4;

class Writer {
 public:
   Writer( std::ostream & out, WhyAnswer const & answer, WhyShown shown, Style const & style )
      : out_( out ), answer_( answer ), bounded_( !shown.everything ), areGatesShown_( shown.otherGates ),
        style_( style ), stepText_( out, bounded_, answer.subject.kind == Kind::part, style ) {}

   void write() {
      out_ << style_.title( answer_.subject.text() ) << '\n';
      if ( std::string const ending = endingText( answer_ ); !ending.empty() ) {
         writeWrapped( out_, 0, ending, style_ );
      }
      for ( std::string const & remark : answer_.remarks ) {
         writeWrapped( out_, 0, printable( remark ), style_ );
      }
      if ( answer_.interface ) {
         writeInterface( *answer_.interface );
      }
      if ( answer_.atStart ) {
         line( "at the start: " + toJson( *answer_.atStart, 0 ), 0 );
      }
      writeChain();
      writeStopped();
      writeHabits( "Wrote what was there", answer_.unchanged );
      writeHabits( "Looked at by", answer_.looks );
      writeIdle();
      writeOthers();
   }

 private:
   void line( std::string const & text, std::size_t indent ) {
      std::size_t const most = 3 * lineWidth(); // of a value that may be the whole of a directory
      Lines( out_, Lines::Long::whole ).put( indent, bounded_ ? fitting( text, most ) : text );
   }
   void
   counted( std::size_t number, char const * one, char const * many, std::string const & remedy, std::size_t indent ) {
      std::string const text = Inspection::counted( number, one, many ) + "; " + remedy;
      if ( indent + text.size() > lineWidth() ) {
         Lines( out_ ).put( indent, text );
      } else {
         out_ << std::string( indent, ' ' ) << style_.faint( text ) << '\n';
      }
   }

   void writeInterface( InterfaceStory const & story ) {
      std::string const own = story.configuredMtu ? "configured: MTU " + std::to_string( story.configuredMtu )
                              : story.isConfigured
                                 ? "configured: no MTU of its own, so the global " + std::to_string( story.globalMtu )
                                 : "not configured";
      if ( !story.parent.empty() ) {
         line( "a subinterface of " + story.parent + ", whose MTU it has:", 0 );
      }
      line( own + ( story.isServed ? "; served" : "; not served" ) + ( story.isActive ? ", active" : ", standby" ) +
               ( story.parent.empty() ? "; its status has " : "; the subinterface's status has " ) +
               ( story.statusMtu ? "the MTU " + std::to_string( *story.statusMtu ) : "no MTU" ),
            0 );
      if ( story.hasItsMtu ) {
         line( "it has the MTU that is configured", 0 );
      }
      for ( std::size_t reason = 0; reason < story.reasons.size(); ++reason ) {
         writeWrapped( out_, 0, ( reason == 0 ? "its MTU is not synced: " : "and: " ) + story.reasons[reason], style_ );
      }
   }

   char const * nothingText() const {
      switch ( answer_.subject.kind ) {
      case Kind::state:
         return "Nothing changed it or was published there";
      case Kind::function:
         return "It asked nothing of any chip";
      case Kind::interface:
         return "Nothing was published for it";
      default:
         return "Nothing changed it";
      }
   }

   void writeChain() {
      if ( answer_.chain.empty() ) {
         out_ << '\n';
         line( nothingText() + whereText( answer_.filter ), 0 );
         auto const touches = knownTouches();
         bool const isOfChips = std::ranges::find( touches, answer_.subject.name, &Touch::function ) != touches.end();
         if ( answer_.subject.kind == Kind::function && !isOfChips ) {
            line( "what it publishes is told by the path, the attribute or the interface", 0 );
         }
         return;
      }
      for ( ChainEvent const & event : answer_.chain ) {
         writeEvent( event );
      }
      if ( answer_.earlier > 0 ) {
         out_ << '\n';
         counted( answer_.earlier, "earlier event", "earlier events", "--last N or --all shows them", 0 );
      }
   }

   void writeEvent( ChainEvent const & event ) {
      std::string const head = "event " + std::to_string( event.event ) + "  ";
      std::string const input = printable( event.input.text() );
      out_ << '\n';
      if ( head.size() + widthOf( input ) <= lineWidth() ) {
         out_ << style_.strong( head ) << input << '\n';
      } else {
         line( head + input, 0 );
      }
      if ( event.steps.empty() ) {
         writeHearers( event );
         line( "nothing followed: no write, no publication, no gate", 2 );
      }
      std::string cause = event.input.cause();
      std::string function;
      std::size_t shown = 0;
      bool areHearersTold = event.hearers.empty();
      for ( ChainStep const & step : event.steps ) {
         if ( bounded_ && shown == mostSteps && event.steps.size() > mostSteps + 1 ) {
            counted( event.steps.size() - shown,
                     "more step",
                     "more steps",
                     "--event " + std::to_string( event.event ) + " shows all",
                     4 );
            break;
         }
         ++shown;
         if ( step.cause != cause ) {
            line( "on " + step.cause, 2 );
            cause = step.cause;
            function.clear();
         }
         if ( !areHearersTold && step.kind == Row::Kind::publish && step.cause == event.input.cause() ) {
            writeHearers( event );
            areHearersTold = true;
         }
         stepText_.write( step, function );
      }
   }

   void writeHearers( ChainEvent const & event ) {
      for ( std::string const & hearer : event.hearers ) {
         line( "heard by " + hearer, 2 );
      }
   }

   void writeStopped() {
      if ( answer_.stopped.empty() ) {
         return;
      }
      out_ << '\n' << style_.strong( "Kept from running" ) << '\n';
      std::size_t shown = 0;
      for ( StoppedStep const & gate : answer_.stopped ) {
         if ( bounded_ && shown == mostGates && answer_.stopped.size() > mostGates + 1 ) {
            counted( answer_.stopped.size() - shown, "more gate", "more gates", "--all shows them", 2 );
            break;
         }
         ++shown;
         writeGate( gate );
      }
   }

   void writeGate( StoppedStep const & gate ) {
      bool const isOwnCause = gate.lastInput.find( gate.lastCause ) != std::string::npos;
      line( "event " + std::to_string( gate.lastEvent ) + "  " + printable( gate.lastInput ) +
               ( isOwnCause ? "" : ", on " + gate.lastCause ) +
               ( gate.times > 1 ? "  (" + std::to_string( gate.times ) + " times in all)" : "" ),
            2 );
      writeOrigin( out_, 4, gate.function, gate.source, style_ );
      std::string const faps = fapsText( gate.faps );
      writeWrapped( out_, 6, "stopped: " + gate.reason + ( faps.empty() ? "" : "  " + faps ), style_ );
      std::vector< std::string > others;
      std::ranges::copy_if(
         gate.kept, std::back_inserter( others ), [&]( auto const & it ) { return it != gate.function; } );
      std::string names;
      for ( std::string const & name : others ) {
         names += ( names.empty() ? "" : ", " ) + name;
      }
      if ( !names.empty() ) {
         line( "so this did not run: " + names, 6 );
      }
      auto const openers = openersOf( gate.reason );
      std::string remedy;
      for ( auto const & opener : openers ) {
         remedy +=
            ( remedy.empty() ? "--toggle " : ", as does " ) + opener.setting() + ( remedy.empty() ? " opens it" : "" );
      }
      if ( !remedy.empty() ) {
         line( remedy, 6 );
      }
   }

   void writeHabits( char const * title, std::vector< Habit > const & habits ) {
      if ( habits.empty() ) {
         return;
      }
      out_ << '\n' << style_.strong( title ) << '\n';
      Columns columns;
      std::size_t widest = 0;
      std::vector< std::pair< std::string, std::string > > totals;
      for ( Habit const & habit : habits ) {
         std::string const times = Inspection::counted( habit.times, "time", "times" );
         std::string const last = "last in event " + std::to_string( habit.lastEvent );
         totals.emplace_back( habit.function, habit.source + "  " + times + "  " + last );
         widest = std::max( widest, totals.back().first.size() + totals.back().second.size() );
         columns.row( { habit.function, style_.faint( habit.source ), times, last } );
      }
      constexpr std::size_t gaps = 2 + 2 + 6; // and what columns stand apart
      if ( widest + gaps <= lineWidth() ) {
         columns.print( out_, 2 );
         return;
      }
      for ( auto const & [function, total] : totals ) {
         writeOrigin( out_, 2, function, total, style_ );
      }
   }

   void writeIdle() {
      if ( answer_.idle.empty() ) {
         return;
      }
      std::string const what = answer_.subject.kind == Kind::control ? "Known to set it"
                               : answer_.subject.part.field.empty()  ? "Known to touch it"
                                                                     : "Known to touch its table";
      out_ << '\n';
      WhyFilter const whole{ .fap = answer_.filter.fap, .at = answer_.filter.at };
      out_ << style_.strong( fitting( what + ", but did not" + whereText( whole ), lineWidth() ) ) << '\n';
      for ( std::string const & function : answer_.idle ) {
         line( function, 2 );
      }
   }

   void writeOthers() {
      if ( answer_.others.empty() ) {
         return;
      }
      out_ << '\n';
      if ( !areGatesShown_ ) {
         counted( answer_.others.size(),
                  "closed gate is not known to have to do with it",
                  "closed gates are not known to have to do with it",
                  "--gates shows them",
                  0 );
         return;
      }
      Lines( out_ ).title( "Closed gates that are not known to have to do with it" );
      for ( StoppedStep const & gate : answer_.others ) {
         writeGate( gate );
      }
   }

   std::ostream & out_;
   WhyAnswer const & answer_;
   bool bounded_;
   bool areGatesShown_;
   Style const & style_;
   ChainStepText stepText_;
};

} // namespace

void writeWhy( std::ostream & out, WhyAnswer const & answer, WhyShown shown, Style const & style ) {
   Writer( out, answer, shown, style ).write();
}

} // namespace Inspection
