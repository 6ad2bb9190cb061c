// What a fault inside the engine leaves, and who is told of it.
#include "barcode/postal.h"
#include "barcode_test_support.h"

namespace tagwright {
namespace {

// A target whose n-th box fails, as a device out of order does.
class FailingSurface : public RecordingSurface {
 public:
  FailingSurface() : RecordingSurface(12000, 9000, 25.4) { Scale().SetScaleMode(kMillimetres); }
  int failing_box = 0;  // 1 for the first; -1 for every one

 protected:
  void DeviceBox(double x1, double y1, double x2, double y2, Color color) override {
    ++boxes_;
    if (failing_box == -1 || boxes_ == failing_box) RaiseFault(kDeviceFault);
    RecordingSurface::DeviceBox(x1, y1, x2, y2, color);
  }

 private:
  int boxes_ = 0;
};

class EngineFaultTest : public BarcodeTest {
 protected:
  EngineFaultTest() { DrawTarget = &device; }
  void Paint(const std::string& data, std::int16_t format) {
    std::string copy = data;
    DrawBarcode(copy, format, 10, 20, 15, 51, false, 8, "");
  }
  std::vector<Painted> Boxes() const { return device.Of(Painted::What::kBox); }
  FailingSurface device;
};

TEST_F(EngineFaultTest, WithoutTheMarkerFileABarIsMissingAndNothingIsSaid) {
  device.failing_box = 3;
  Paint("AB", 9);  // 20 bars in modules of 1
  EXPECT_EQ(Boxes().size(), 19U);
  EXPECT_NEAR(Boxes().back().x2, 61, 1e-4);  // the others stand where they belong
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(device.DrawMode, 13);
}

TEST_F(EngineFaultTest, WithTheMarkerFileTheFaultIsShownAndTheDrawingGoesOn) {
  PutMarkerFile();
  device.failing_box = 3;
  Paint("AB", 9);
  EXPECT_EQ(Boxes().size(), 19U);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "57 - Device I/O error");
  EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::kOk);
  EXPECT_EQ(dialogs.messages[0].title, "");
}

TEST_F(EngineFaultTest, ASumTooLargeIsShownOnceAsAnOverflow) {
  PutMarkerFile();
  Paint(std::string(2729, 'A'), 9);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "6 - Overflow");
}

// The marker file is looked for beside the executable, not in AppFolder.
TEST_F(EngineFaultTest, TheMarkerFileIsTheOneOfTheRunningProgram) {
  TempFolder elsewhere;
  WriteFile(elsewhere.File("tracemark.flg"), "");
  SetExecutableFolder(elsewhere.Path());
  device.failing_box = 1;
  Paint("AB", 9);
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

// The two postal routines trace nothing of their own. Their bar painters do.
TEST_F(EngineFaultTest, AFaultInThePostalRoutinesThemselvesShowsNothing) {
  PutMarkerFile();
  DrawTarget = nullptr;  // every use of the target faults
  DrawRoyalMail("", 10, 20);
  const std::size_t bars_of_frame_and_check = 6;
  EXPECT_EQ(dialogs.messages.size(), bars_of_frame_and_check);
  dialogs.messages.clear();
  DrawPostNet("", 10, 20);
  EXPECT_EQ(dialogs.messages.size(), 2U);  // the two frame bars
}

TEST_F(EngineFaultTest, APostalBarThatFailsIsShownByItsPainter) {
  PutMarkerFile();
  device.failing_box = 2;
  Paint("AB", 13);
  EXPECT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(Boxes().size(), 2U + 3 * 4 - 1);
}

TEST_F(EngineFaultTest, WithoutATargetNothingGetsOut) {
  DrawTarget = nullptr;
  for (std::int16_t format = 0; format < 14; ++format) EXPECT_NO_THROW(Paint("12345670", format));
  EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace
}  // namespace tagwright
