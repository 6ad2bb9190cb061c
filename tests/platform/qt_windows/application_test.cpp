#include "platform/services/application.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <cstdlib>
#include <string>

#include "platform/services/desktop.h"
#include "platform/text/locale.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

// A process of the program, in the language of `locale`.
class Process {
 public:
  explicit Process(const std::string& locale) {
    setenv("LC_ALL", locale.c_str(), 1);
    application_ = std::make_unique<Application>(count_, arguments_);
  }
  ~Process() {
    application_.reset();
    SetLocale(UserLocale());
    SetCodePage(UserLocale().code_page);
    unsetenv("LC_ALL");
  }
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

 private:
  int count_ = 1;
  char name_[5] = "test";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<Application> application_;
};

TEST(ApplicationTest, AGermanStartReadsAndWritesNumbersAsGermansDo) {
  const Process german("de_DE.UTF-8");
  EXPECT_EQ(Locale().short_date, "dd.MM.yyyy");
  EXPECT_EQ(ParseNumber("1.234,5"), 1234.5);
}

TEST(ApplicationTest, APolishStartTakesTheCodePageOfTheLanguage) {
  const Process polish("pl_PL.UTF-8");
  EXPECT_EQ(ParseNumber("2,5"), 2.5);
  EXPECT_EQ(CodePage(), 1250);
  EXPECT_EQ(ToCodePage("ł"), "\xB3");
}

// However often it is asked for, one farewell takes it away.
TEST(ApplicationTest, TheWaitPointerStandsOverAllWindowsUntilItIsTakenBack) {
  const Process process("C");
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  for (int times = 0; times < 2; ++times) {
    SetScreenMousePointer(11);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  }
  SetScreenMousePointer(0);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(ApplicationTest, WithoutAWindowThereIsNothingToRun) {
  char name[] = "test";
  char* arguments[] = {name, nullptr};
  int count = 1;
  Application application(count, arguments);
  EXPECT_EQ(application.Run(), EXIT_SUCCESS);
}

}  // namespace
}  // namespace tagwright
