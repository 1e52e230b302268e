// Why something on a chip or in the state is what it is, and why not something else: the chains that lead from an input
// over a function of the plug-in to a gate, a write or a publication.
//
//    WhyReader reader( whySubjectOf( "IppdFerTrapCfg.cpuStrengthN" ), {} );
//    WhyAnswer const answer = whyOf( journal, reader );      // a JournalReader; InputError
//    writeWhy( std::cout, answer, style );
//
// A reader keeps the newest events of the chain and totals of the rest, so that its memory doesn't grow with the run;
// it hears a live run as well as a file.
#pragma once

#include "inspection/ChainSteps.h"
#include "inspection/EventInput.h"
#include "inspection/InterfaceModel.h"
#include "inspection/WhySubject.h"
#include "inspection/files/JournalReader.h"

#include <deque>

namespace Inspection {

struct WhyFilter {
   std::optional< U16 > fap = {};
   TypedPlace place = {};
   std::optional< U32 > event = {};
   std::optional< U32 > at = {}; // as if the run had ended with this event
   std::string function = {};    // a part of its name
   std::string cause = {};       // likewise
   std::string table = {};
   std::size_t events = 8; // how many of the chain to keep, the newest
};

// An event of the chain.
struct ChainEvent {
   U32 event = 0;
   EventInput input = {};
   std::vector< ChainStep > steps = {};
   // The functions that are known to run when the input changes: a publication doesn't name the one that made it.
   std::vector< std::string > hearers = {};
};

// A function that did something again and again, told once.
struct Habit {
   std::string function = {};
   std::string source = {};
   std::size_t times = 0;
   U32 lastEvent = 0;
};

// A gate that was found closed.
struct StoppedStep {
   std::string function = {};
   std::string source = {};
   std::string reason = {};
   std::set< U16 > faps = {}; // none: its condition is not one of a FAP
   std::size_t times = 0;
   U32 lastEvent = 0;
   std::string lastCause = {};
   std::string lastInput = {};
   // The functions that it kept from running, of those that are known to have to do with the subject.
   std::vector< std::string > kept = {};
};

struct WhyAnswer {
   WhySubject subject = {};
   WhyFilter filter = {}; // what was asked for of it
   Simulator::Ending ending = {};
   std::vector< std::string > remarks = {}; // on the journal
   bool isReached = false;                  // the run has told something of it

   std::deque< ChainEvent > chain = {}; // newest first
   std::size_t earlier = 0;             // events of the chain that were not kept
   std::vector< Habit > unchanged = {}; // who wrote what was there
   std::vector< Habit > looks = {};     // who read it
   std::vector< StoppedStep > stopped = {};
   std::vector< StoppedStep > others = {}; // gates of which it is not known that they have to do with it
   // Functions that are known to touch its table, and that neither did so in the run, on the FAP that was asked for,
   // nor were stopped.
   std::vector< std::string > idle = {};
   std::optional< Rex::Value > atStart = {}; // of an attribute, as the run began with it, where that says so
   std::optional< InterfaceStory > interface = {};
};

class WhyReader final : public Simulator::RowReader {
 public:
   WhyReader( WhySubject subject, WhyFilter filter );

   // What the run began with; before the first event.
   void beginsWith( Rex::Value const & scenario );
   void eventBegins( U32 event, Rex::Value const & what ) override;
   void row( Simulator::Row const & row ) override;
   void eventEnds( U32 event ) override;
   void ends( Simulator::Ending const & ending ) override;

   // Which rows of a journal it needs to hear.
   RowFilter rows() const;
   WhyFilter const & filter() const { return filter_; }
   bool hasHeardOf( U16 fap ) const { return faps_.contains( fap ); }
   // Of a subject that is an interface: those that the run names.
   std::vector< std::string > interfaces() const { return model_ ? model_->names() : std::vector< std::string >(); }
   // After the end.
   WhyAnswer take();

 private:
   RowFilter rowsOfSubject() const;
   bool isOfTable() const { return answer_.subject.kind <= WhySubject::Kind::control; }
   bool isTooLate( U32 event ) const { return filter_.at && event > *filter_.at; }
   bool isWanted( Simulator::Row const & row ) const;
   bool isAbout( Simulator::Row const & row ) const;
   bool isAboutInterface( Simulator::Row const & row ) const;
   void ran( Simulator::Row const & row );
   void touched( Simulator::Row const & row );
   void stopped( Simulator::Row const & row );
   std::vector< std::string > keptBy( std::string_view function ) const;
   void eventIsOver();
   void habit( std::vector< Habit > & habits, Simulator::Row const & row ) const;

   WhyFilter filter_;
   WhyAnswer answer_;
   std::set< std::string, std::less<> > known_; // functions that are known to have to do with the subject
   std::set< std::string, std::less<> > ran_;   // functions that had to do with it in this run
   std::set< U16 > faps_;
   // A gate, with whether it is known to keep a function from running that has to do with the subject, as of so many
   // that ran.
   struct Gate {
      StoppedStep step = {};
      bool keeps = false;
      std::optional< std::size_t > ofRan = {};
   };
   Gate & gateOf( Simulator::Row const & row );
   std::map< std::pair< std::string, std::string >, Gate > gates_; // by source and reason
   std::vector< Gate * > latestGates_;                             // by where the row is from
   std::optional< InterfaceModel > model_;

   U32 event_ = 0;
   EventInput input_;
   bool isInput_ = false; // the event's input is the subject
   ChainSteps steps_;
};

// Reads the journal to its end. InputError where the journal knows nothing of what was asked about.
WhyAnswer whyOf( JournalReader & journal, WhyReader & reader );

} // namespace Inspection
