// Options that don't go together, places that are missing, and what is asked for that there can't be.
#include "agent/control/ControlSocket.h"
#include "l3sm/WrongInput.h"

namespace {

TEST( WrongOptions, ofTheVerbsThatPlayAScenario ) {
   expectTold( {
      { "an audit of a second start",
        "check --audit --restart",
        {},
        "--audit plays the scenario with its faults; leave --restart, --windows and --chips out" },
      { "an audit of windows",
        "check --audit --windows",
        {},
        "--audit plays the scenario with its faults; leave --restart, --windows and --chips out" },
      { "an audit of a file",
        "check --audit --chips c",
        {},
        "--audit plays the scenario with its faults; leave --restart, --windows and --chips out" },
      { "two kinds of windows",
        "check --restart --windows",
        {},
        "--restart tells the windows of a second start, --windows those of the run; give one of them" },
      { "windows of a file",
        "check --windows --chips c",
        {},
        "--chips is for what is read back; --restart and --windows play the scenario as it is" },
      { "a second start on a file",
        "check --restart --chips c",
        {},
        "--chips is for what is read back; --restart and --windows play the scenario as it is" },
      { "two builds by toggle",
        "compare --against x.so --toggles",
        {},
        "--against compares all that two builds do; leave out --toggles and --table" },
      { "two builds by table",
        "compare --against x.so --table IppdFerTrapCfg",
        {},
        "--against compares all that two builds do; leave out --toggles and --table" },
      { "chance without a second build", "compare --random 3", {}, "--random and --seed are for --against" },
      { "its begin without a second build", "compare --seed 3", {}, "--random and --seed are for --against" },
      { "several scenarios by chip", "compare a.json b.json", {}, "one scenario at a time, but with --against" },
      { "a begin of no chance", "compare --against x.so --seed 3", {}, "--seed is for --random" },
      { "a begin of no chance", "coverage s.json --seed 3", {}, "--seed is for --random" },
      { "all, of what isn't there",
        "coverage s.json --min 100",
        {},
        "s.json: can't be read: No such file or directory" },
      { "more than all", "coverage s.json --min 101", {}, "--min 101: expected a percentage, up to 100" },
      { "coverage of nothing", "coverage", {}, "name a journal or a scenario, or give --random" },
      { "coverage on a page that is read",
        "coverage a.json b.jsonl --page b.jsonl",
        {},
        "b.jsonl: is named twice; give each file a name of its own" },
      { "a plan of a FAP that isn't there", "plan --fap 7", {}, "--fap 7: the switch has no such FAP; it has 0-1" },
   } );
}

TEST( WrongOptions, ofTheVerbsThatReadFiles ) {
   expectTold( {
      { "nothing to show", "show", {}, "FILE is required, or --agent SLICE; l3sm show --help tells what there is" },
      { "words in brackets", "coverage [a,b]", {}, "[a,b]: can't be read: No such file or directory" },
      { "nothing to compare", "diff", {}, "A is required, or --agent SLICE; l3sm diff --help tells what there is" },
      { "an event that is none",
        "diff a b --at last",
        {},
        "--at last: is no event; events have numbers, 0 for the start" },
      { "an event too many", "diff a b --at 1 --at 2 --at 3", {}, "--at is given 3 times; there are two sides" },
      { "no journal", "why", {}, "JOURNAL is required, or --agent SLICE; l3sm why --help tells what there is" },
      { "no subject", "why j", {}, "SUBJECT is required; l3sm why --help tells what there is" },
      { "a place of a path",
        "why j evpn/status --array 1",
        {},
        "--variant, --array and --entry are places of a table; evpn/status is none" },
      { "a place of a control",
        "why j control.64 --entry 1",
        {},
        "--variant, --array and --entry are places of a table; control.64 is none" },
      { "a misspelt table",
        "why j evpn/status --table IppdFerTrapCg",
        {},
        "no table has the name \"IppdFerTrapCg\"; did you mean \"IppdFerTrapCfg\"?" },
      { "a table that the chip hasn't",
        "catalogue IppbLifMcBridgeFallbackAllow --chip BCM88690_B0",
        {},
        "the BCM88690_B0 has no table IppbLifMcBridgeFallbackAllow" },
   } );
}

TEST( WrongOptions, ofTheVerbsThatAskAnAgent ) {
   std::string const hasAlready = "an agent has its plug-in and its toggles already: leave out --plugin and --toggle, "
                                  "or, to plan another build's start, the scenario";
   std::string const sides = "there are two sides; an agent, by --agent, is one of them";
   std::string const now = "--at asks for an event of a journal; an agent tells of what stands there now";
   expectTold( {
      { "toggles of an agent", "plan --agent A s.json --toggle Dace.json:ArmOrderedSwTable=off", {}, hasAlready },
      { "events on another build", "plan --agent A s.json --plugin x.so", {}, hasAlready },
      { "toggles of another build",
        "plan --agent A --plugin x.so --toggle Dace.json:ArmOrderedSwTable=off",
        {},
        "an agent has its toggles already: leave out --toggle" },
      { "nothing to plan",
        "plan --agent A",
        {},
        "SCENARIO.json, whose events are planned, is required, or --plugin, whose start is; l3sm plan --help tells "
        "what there is" },
      { "one side", "diff --agent A", {}, sides },
      { "three sides", "diff --agent A a b", {}, sides },
      { "three sides, two of them agents", "diff --agent A --agent B a", {}, sides },
      { "what an agent has forgotten", "diff --agent A --agent B --at 1", {}, now },
      { "an event of chips", "diff --agent A c --at 1", { { "c", "{\"faps\": {}}" } }, now },
      { "a journal beside an agent",
        "why --agent A j IppdFerTrapCfg",
        {},
        "j: is one place too many: --agent stands for the journal" },
      { "no subject", "why --agent A", {}, "SUBJECT is required; l3sm why --help tells what there is" },
      { "no time", "show --agent ./a.ctl --timeout 0", {}, "--timeout 0: expected seconds, from 1 to a day's" },
      { "more than a day",
        "why --agent ./a.ctl IppdFerTrapCfg --timeout 86401",
        {},
        "--timeout 86401: expected seconds, from 1 to a day's" },
   } );
}

TEST( WrongOptions, ofCtl ) {
   std::string const nobody = "./a.ctl: no agent listens there; `l3sm serve` starts one";
   expectTold( {
      { "nothing to ask", "ctl --socket a.ctl", {}, "say what to ask the agent; l3sm ctl list tells what there is" },
      { "nothing at all", "ctl", {}, "say what to ask the agent; l3sm ctl list tells what there is" },
      { "two agents", "ctl -t A --socket a.ctl status", {}, "-t and --socket both name an agent; leave one out" },
      { "two agents for a verb's question",
        "ctl -t A --socket a.ctl show",
        {},
        "-t and --socket both name an agent; leave one out" },
      { "an option without its value",
        "ctl --socket",
        {},
        "--socket: 1 required PATH missing; l3sm ctl --help tells what there is" },
      { "a socket that nobody serves", "ctl --socket a.ctl status", {}, nobody },
      { "the same in one word", "ctl --socket=a.ctl status", {}, nobody },
      { "the same behind the command", "ctl status --socket a.ctl", {}, nobody },
      { "the same of a verb's question", "ctl --socket a.ctl show", {}, nobody },
      { "the same of a verb's question in one word", "ctl --socket=a.ctl show", {}, nobody },
      { "no time", "ctl --socket a.ctl --timeout 0 status", {}, "--timeout 0: expected seconds, from 1 to a day's" },
      { "no time for a verb's question",
        "ctl --timeout=0 --socket a.ctl show",
        {},
        "--timeout 0: expected seconds, from 1 to a day's" },
   } );
}

// Whichever agents run on this machine: with one alone, that is asked.
TEST( WrongOptions, ofCtlThatNamesNoneOfNoneOrOfSeveralAgents ) {
   auto const slices = Live::slicesThere();
   if ( slices.size() == 1 ) {
      GTEST_SKIP() << "left out: an agent runs on this machine";
   }
   std::string all;
   for ( auto const & slice : slices ) {
      all += ( all.empty() ? "" : ", " ) + slice;
   }
   std::string const told = slices.empty() ? "no agent has a socket in /run/l3sm; `l3sm serve` starts one, --socket "
                                             "names one that is elsewhere"
                                           : "say which agent with -t; there are " + all;
   expectTold( { { "a command", "ctl status", {}, told }, { "a verb's question", "ctl show --fap 0", {}, told } } );
}

} // namespace
