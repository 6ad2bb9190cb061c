// The whole program, started on a fresh folder without a display.
#pragma once

#include "common/prog_settings.h"
#include "forms/frmAbout.h"
#include "forms/frmMain.h"
#include "forms/frmSerialNumber.h"
#include "platform/controls/windows.h"
#include "platform/files/files.h"
#include "shell/settings_file.h"
#include "shell/startup.h"
#include "support/test_support.h"

namespace tagwright {

class ShellTest : public ProgramTest {
 protected:
  ~ShellTest() override {
    WireForm<FrmMain> = nullptr;
    WireForm<FrmAbout> = nullptr;
    WireForm<FrmSerialNumber> = nullptr;
  }

  std::string SettingsFile() const { return folder.File("progsettings.twd"); }

  void WriteSettingsFile(const SettingsRecord& settings) {
    WriteFile(SettingsFile(), SettingsBytes(settings));
  }

  SettingsRecord SettingsOnDisk() const { return ReadSettings(SettingsFile()); }
};

}  // namespace tagwright
