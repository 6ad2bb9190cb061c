#include "support/scripted_progress.h"

namespace tagwright {

class ScriptedProgress::View : public ProgressView {
 public:
  View(ScriptedProgress& script, std::size_t job) : script_(script), job_(job) {}
  ~View() override { Shown().open = false; }

  void Tell(const std::string& text, double share) override {
    Shown().texts.push_back(text);
    Shown().shares.push_back(share);
  }

  bool GoesOn() override {
    ++Shown().asked;
    if (script_.meanwhile) script_.meanwhile();
    if (++script_.questions_ == script_.cancel_at) cancelled_ = true;
    return !cancelled_;
  }

 private:
  Job& Shown() { return script_.jobs[job_]; }

  ScriptedProgress& script_;
  std::size_t job_;
  bool cancelled_ = false;
};

std::unique_ptr<ProgressView> ScriptedProgress::Open(const std::string& title) {
  jobs.push_back({title, {}, {}, 0, true});
  return std::make_unique<View>(*this, jobs.size() - 1);
}

}  // namespace tagwright
