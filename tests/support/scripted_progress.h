// Long jobs without a window: a script says when the user cancels, and what happens meanwhile.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/services/progress.h"

namespace tagwright {

class ScriptedProgress : public ProgressService {
 public:
  // One job as its window would have shown it.
  struct Job {
    std::string title;
    std::vector<std::string> texts;
    std::vector<double> shares;
    int asked = 0;  // how often it asked whether to go on
    bool open = true;
  };
  std::vector<Job> jobs;
  int cancel_at = -1;               // the count of questions, over all jobs, at which it is no
  std::function<void()> meanwhile;  // runs at each question: what the user does to the program

  std::unique_ptr<ProgressView> Open(const std::string& title) override;

 private:
  class View;
  int questions_ = 0;
};

}  // namespace tagwright
