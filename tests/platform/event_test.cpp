// Faults, events and what waits for them.
#include "platform/controls/event.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/faults/fault.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

class EventTest : public testing::Test {
 protected:
  EventTest() {
    SetFaultReporter([this](const Fault& fault) { reported.push_back(fault.number); });
  }
  ~EventTest() override {
    SetFaultReporter({});
    ForgetAfterHandlers(nullptr);
  }
  std::vector<int> reported;
  std::vector<std::string> log;
};

// --- faults -------------------------------------------------------------------------------------

TEST(FaultTest, EveryNamedNumberHasADescriptionOfItsOwn) {
  for (const int number :
       {5, 6, 7, 9, 11, 13, 51, 53, 57, 61, 75, 340, 380, 481, 482, 3031, 3343, 32755}) {
    EXPECT_FALSE(FaultDescription(number).empty()) << number;
    EXPECT_NE(FaultDescription(number), FaultDescription(1)) << number;
  }
  EXPECT_EQ(FaultDescription(1), "Application-defined fault");
}

TEST(FaultTest, TheTrappedNumbersAreStable) {
  EXPECT_EQ(kMissingElement, 340);
  EXPECT_EQ(kBadPicture, 481);
  EXPECT_EQ(kFileNotFound, 53);
  EXPECT_EQ(kPasswordNeeded, 3031);
  EXPECT_EQ(kLinkedTable, 3044);
  EXPECT_EQ(kDialogCancelled, 32755);
}

TEST(FaultTest, AFaultCarriesItsNumberAndNeverAnEmptyDescription) {
  try {
    RaiseFault(kFileNotFound, "");
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.number, 53);
    EXPECT_EQ(fault.description, "File not found");
  }
  try {
    RaiseFault(1000, "mine");
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.description, "mine");
  }
}

TEST(FaultTest, CarryOnPassesOverAStatementAndKeepsTheOldValue) {
  int value = 1;
  const auto fails = []() -> int { RaiseFault(kOverflow); };
  EXPECT_FALSE(CarryOn([&] { value = fails(); }));
  EXPECT_EQ(value, 1);
  EXPECT_TRUE(CarryOn([&] { value = 2; }));
  EXPECT_EQ(value, 2);
}

// --- events -------------------------------------------------------------------------------------

TEST_F(EventTest, AnEventRunsItsHandlerBeforeRaiseReturns) {
  Event<> event;
  event = [&] { log.push_back("ran"); };
  event.Raise(-1);
  EXPECT_EQ(log.size(), 1u);
}

TEST_F(EventTest, AnEventWithoutHandlerDoesNothing) {
  Event<int&> event;
  int value = 5;
  event.Raise(0, value);
  EXPECT_EQ(value, 5);
  EXPECT_FALSE(event);
}

TEST_F(EventTest, AHandlerMayTakeTheIndexOrLeaveItOut) {
  Event<int, int> event;
  int seen = 0;
  event = [&](int index, int a, int b) { seen = 100 * index + 10 * a + b; };
  event.Raise(3, 2, 1);
  EXPECT_EQ(seen, 321);
  event = [&](int a, int b) { seen = 10 * a + b; };
  event.Raise(3, 2, 1);
  EXPECT_EQ(seen, 21);
}

TEST_F(EventTest, AHandlerChangesAnArgumentPassedByReference) {
  Event<int&> event;
  event = [](int& key) { key = 0; };
  int key = 65;
  event.Raise(-1, key);
  EXPECT_EQ(key, 0);
}

TEST_F(EventTest, BindingAgainReplacesTheHandlerAlsoFromInsideIt) {
  Event<> event;
  event = [&] {
    log.push_back("first");
    event = [&] { log.push_back("second"); };
    log.push_back("still first");
  };
  event.Raise(-1);
  event.Raise(-1);
  EXPECT_EQ(log, (std::vector<std::string>{"first", "still first", "second"}));
}

TEST_F(EventTest, EventsNest) {
  Event<> outer, inner;
  inner = [&] { log.push_back("inner " + std::to_string(RunningHandlers())); };
  outer = [&] {
    log.push_back("outer " + std::to_string(RunningHandlers()));
    inner.Raise(-1);
    log.push_back("outer again");
  };
  outer.Raise(-1);
  EXPECT_EQ(log, (std::vector<std::string>{"outer 1", "inner 2", "outer again"}));
  EXPECT_EQ(RunningHandlers(), 0);
}

TEST_F(EventTest, AFaultEndsItsOwnEventOnly) {
  Event<> outer, inner;
  inner = [&] { RaiseFault(kOverflow); };
  outer = [&] {
    inner.Raise(-1);
    log.push_back("outer goes on");
  };
  outer.Raise(-1);
  EXPECT_EQ(log, (std::vector<std::string>{"outer goes on"}));
  EXPECT_EQ(reported, std::vector<int>{6});
  EXPECT_EQ(RunningHandlers(), 0);
}

TEST_F(EventTest, ExceptionsOfLibrariesEndTheEventAsFaults) {
  RunHandler([] { throw std::bad_alloc(); });
  RunHandler([] { throw std::runtime_error("odd"); });
  EXPECT_EQ(reported, (std::vector<int>{kOutOfMemory, kInternalError}));
}

TEST_F(EventTest, AReporterThatFaultsItselfEndsQuietly) {
  SetFaultReporter([](const Fault&) { RaiseFault(kOverflow); });
  RunHandler([] { RaiseFault(kFileNotFound); });
  EXPECT_EQ(RunningHandlers(), 0);
}

TEST_F(EventTest, TheDefaultReporterShowsNumberAndDescription) {
  ScriptedDialogs dialogs;
  SetDialogs(&dialogs);
  SetFaultReporter({});
  RunHandler([] { RaiseFault(kDivisionByZero); });
  SetDialogs(nullptr);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, "11 - Division by zero");
}

TEST_F(EventTest, SettingAReporterReturnsTheFormerOne) {
  const FaultReporter former = SetFaultReporter({});
  ASSERT_TRUE(former);
  former({7, "x"});
  EXPECT_EQ(reported, std::vector<int>{7});
  EXPECT_FALSE(SetFaultReporter(former));
}

// --- what waits ---------------------------------------------------------------------------------

TEST_F(EventTest, WorkRunsAtOnceWhenNoHandlerRuns) {
  AfterHandlers(nullptr, [&] { log.push_back("work"); });
  EXPECT_EQ(log.size(), 1u);
}

TEST_F(EventTest, WorkWaitsForTheOutermostHandler) {
  RunHandler([&] {
    RunHandler([&] { AfterHandlers(nullptr, [&] { log.push_back("work"); }); });
    log.push_back("outer");
  });
  EXPECT_EQ(log, (std::vector<std::string>{"outer", "work"}));
}

TEST_F(EventTest, WorkRunsWithNoHandlerOnTheStack) {
  int running = -1;
  RunHandler([&] { AfterHandlers(nullptr, [&] { running = RunningHandlers(); }); });
  EXPECT_EQ(running, 0);
}

TEST_F(EventTest, OfSeveralUnderOneKeyTheLastOneWinsAtItsOwnPlace) {
  int key = 0, other = 0;
  RunHandler([&] {
    AfterHandlers(&key, [&] { log.push_back("first"); });
    AfterHandlers(&other, [&] { log.push_back("other"); });
    AfterHandlers(&key, [&] { log.push_back("last"); });
  });
  EXPECT_EQ(log, (std::vector<std::string>{"other", "last"}));
}

TEST_F(EventTest, WorkWithoutKeyIsAllRunInOrder) {
  RunHandler([&] {
    AfterHandlers(nullptr, [&] { log.push_back("1"); });
    AfterHandlers(nullptr, [&] { log.push_back("2"); });
  });
  EXPECT_EQ(log, (std::vector<std::string>{"1", "2"}));
}

TEST_F(EventTest, WorkThatAsksForWorkIsNotInterruptedByIt) {
  RunHandler([&] {
    AfterHandlers(nullptr, [&] {
      RunHandler([] {});
      AfterHandlers(nullptr, [&] { log.push_back("asked inside"); });
      log.push_back("first ends");
    });
    AfterHandlers(nullptr, [&] { log.push_back("second"); });
  });
  EXPECT_EQ(log, (std::vector<std::string>{"first ends", "second", "asked inside"}));
}

TEST_F(EventTest, AFaultInWaitingWorkIsReportedAndTheNextOneRuns) {
  RunHandler([&] {
    AfterHandlers(nullptr, [] { RaiseFault(kOverflow); });
    AfterHandlers(nullptr, [&] { log.push_back("next"); });
  });
  EXPECT_EQ(reported, std::vector<int>{6});
  EXPECT_EQ(log, std::vector<std::string>{"next"});
}

TEST_F(EventTest, WaitingWorkCanBeForgottenByKeyOrAltogether) {
  int key = 0;
  RunHandler([&] {
    AfterHandlers(&key, [&] { log.push_back("key"); });
    AfterHandlers(nullptr, [&] { log.push_back("no key"); });
    ForgetAfterHandlers(&key);
  });
  EXPECT_EQ(log, std::vector<std::string>{"no key"});
  RunHandler([&] {
    AfterHandlers(nullptr, [&] { log.push_back("never"); });
    ForgetAfterHandlers(nullptr);
  });
  EXPECT_EQ(log.size(), 1u);
}

TEST_F(EventTest, WorkAlsoRunsAfterAHandlerThatFaulted) {
  RunHandler([&] {
    AfterHandlers(nullptr, [&] { log.push_back("work"); });
    RaiseFault(kOverflow);
  });
  EXPECT_EQ(log, std::vector<std::string>{"work"});
}

// --- levels -------------------------------------------------------------------------------------

TEST_F(EventTest, AModalLevelIsFreeWhileTheHandlerBelowItWaits) {
  RunHandler([&] {
    EXPECT_TRUE(HandlerRuns(0));
    const ModalLevel level;
    EXPECT_EQ(level.Number(), 1);
    EXPECT_FALSE(HandlerRuns(1));
    EXPECT_TRUE(HandlerRuns(0));
    RunHandler([] { EXPECT_TRUE(HandlerRuns(1)); });
  });
  EXPECT_FALSE(HandlerRuns(0));
}

TEST_F(EventTest, AModalLevelHoldsBackTheProgramEvenWithoutAHandler) {
  {
    const ModalLevel level;
    EXPECT_TRUE(HandlerRuns(0));
    AfterHandlers(
        nullptr, [&] { log.push_back("below"); }, 0);
    EXPECT_TRUE(log.empty());
  }
  EXPECT_EQ(log, std::vector<std::string>{"below"});
}

TEST_F(EventTest, WorkOfTheModalLevelRunsWhenThatLevelIsDone) {
  RunHandler([&] {
    const ModalLevel level;
    RunHandler([&] {
      AfterHandlers(
          nullptr, [&] { log.push_back("modal"); }, 1);
      AfterHandlers(
          nullptr, [&] { log.push_back("below"); }, 0);
      log.push_back("handler");
    });
    log.push_back("still modal");
  });
  EXPECT_EQ(log, (std::vector<std::string>{"handler", "modal", "still modal", "below"}));
}

TEST_F(EventTest, WorkOfAWorkThatOpensAModalWindowRunsInIt) {
  AfterHandlers(nullptr, [&] {
    const ModalLevel level;
    AfterHandlers(
        nullptr, [&] { log.push_back("in the window"); }, 1);
    log.push_back("window closes");
  });
  EXPECT_EQ(log, (std::vector<std::string>{"in the window", "window closes"}));
}

TEST_F(EventTest, WorkOfALevelThatIsGoneBelongsToThePresentOne) {
  RunHandler([&] {
    const ModalLevel level;
    RunHandler([&] {
      AfterHandlers(
          nullptr, [&] { log.push_back("work"); }, 7);
    });
    EXPECT_EQ(log.size(), 1u);
  });
  EXPECT_FALSE(HandlerRuns(7));
}

// What shows state that any handler may change.
TEST_F(EventTest, TheWorkAfterEachHandlerRunsWhenTheOutermostIsDoneAndBeforeWhatWaits) {
  SetAfterEachHandler([&] { log.push_back("rest"); });
  RunHandler([&] {
    AfterHandlers(nullptr, [&] { log.push_back("waited"); });
    RunHandler([&] { log.push_back("inner"); });
    log.push_back("outer");
  });
  EXPECT_EQ(log, (std::vector<std::string>{"inner", "outer", "rest", "waited"}));
  log.clear();
  RunHandler([&] {
    const ModalLevel level;
    RunHandler([&] { log.push_back("in the window"); });
  });
  EXPECT_EQ(log, (std::vector<std::string>{"in the window", "rest", "rest"}));
  SetAfterEachHandler(nullptr);
  log.clear();
  RunHandler([] {});
  EXPECT_TRUE(log.empty());
}

TEST_F(EventTest, AFaultInTheWorkAfterEachHandlerEndsThere) {
  SetAfterEachHandler([] { RaiseFault(kOverflow); });
  RunHandler([] {});
  SetAfterEachHandler(nullptr);
  EXPECT_EQ(reported, std::vector<int>{kOverflow});
}

}  // namespace
}  // namespace tagwright
