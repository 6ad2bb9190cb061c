#include "platform/painting/printer.h"

#include <gtest/gtest.h>

#include "platform/faults/fault.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

template <class Call>
int FaultOf(Call&& call) {
  try {
    call();
  } catch (const Fault& fault) {
    return fault.number;
  }
  return 0;
}

class PrinterTest : public testing::Test {
 protected:
  PrinterTest() {
    printers.names = {"First", "Second"};
    SetPrinterList(&printers);
    ResetPrinter();
  }
  ~PrinterTest() override {
    ResetPrinter();
    SetPrinterList(nullptr);
  }
  FakePrinterList printers;
};

TEST_F(PrinterTest, ListsTheServicesNamesInTheirOrder) {
  EXPECT_EQ(Printers(), (std::vector<std::string>{"First", "Second"}));
}

TEST_F(PrinterTest, TheDefaultPrinterIsTheChosenOneUntilAnotherIs) {
  EXPECT_EQ(Printer().DeviceName(), "First");
  ChoosePrinter("Second");
  EXPECT_EQ(Printer().DeviceName(), "Second");
  ResetPrinter();
  EXPECT_EQ(Printer().DeviceName(), "First");
}

TEST_F(PrinterTest, ThePrinterKeepsWhatItWasSetTo) {
  Printer().SetPaperSize(1);
  EXPECT_EQ(Printer().PaperSize(), 1);
}

TEST_F(PrinterTest, APrinterThatIsGoneFaultsAndTheFormerOneStays) {
  ChoosePrinter("Second");
  EXPECT_EQ(FaultOf([] { ChoosePrinter("Third"); }), 482);
  EXPECT_EQ(FaultOf([] { ChoosePrinter(""); }), 482);
  EXPECT_EQ(Printer().DeviceName(), "Second");
}

TEST_F(PrinterTest, WithoutAServiceThereAreNoPrinters) {
  SetPrinterList(nullptr);
  EXPECT_TRUE(Printers().empty());
  EXPECT_EQ(PrinterList().DefaultName(), "");
  EXPECT_EQ(FaultOf([] { Printer(); }), 482);
  EXPECT_EQ(FaultOf([] { ChoosePrinter("First"); }), 482);
}

TEST_F(PrinterTest, AServiceWithoutPrintersFaults) {
  printers.names.clear();
  EXPECT_EQ(FaultOf([] { Printer(); }), 482);
}

}  // namespace
}  // namespace tagwright
