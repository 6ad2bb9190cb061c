// A small window over a long job: what it does, how far it is, and a button that ends it.
//
// The window comes up only when a job takes its time, so that a short one does not flicker. While
// it stands, it and its button are all that the user can reach: the main window repaints, its
// resizes and its close wait until the job's handler is done, presses and keys go nowhere.
#pragma once

#include <memory>
#include <string>

namespace tagwright {

// How far a job is that does not know its end.
constexpr double kUnknownShare = -1;

// The toolkit's side of one job's window; gone with the job.
class ProgressView {
 public:
  virtual ~ProgressView() = default;
  virtual void Tell(const std::string& text, double share) = 0;
  virtual bool GoesOn() = 0;
};

// What the toolkit does for long jobs; without one (in tests) jobs run unseen to their end.
class ProgressService {
 public:
  virtual ~ProgressService() = default;
  virtual std::unique_ptr<ProgressView> Open(const std::string& title) = 0;
};

void SetProgressService(ProgressService* service);  // not owned; null: none

// One long job, from construction to destruction:
//
//   Progress progress("Printing");
//   for (...) {
//     if (!progress.GoesOn()) break;
//     progress.Tell("Page 3", 0.25);
//   }
class Progress {
 public:
  explicit Progress(const std::string& title);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // What the window says from now on, and how far the job is: 0 to 1, or kUnknownShare.
  void Tell(const std::string& text, double share = kUnknownShare);

  // Lets the window live for a moment where that is due, and tells whether the job is to go on:
  // false from the user's cancel on. Cheap enough to be asked for each label and each thousandth
  // row. No handler of the program runs meanwhile.
  bool GoesOn();

 private:
  std::unique_ptr<ProgressView> view_;
};

}  // namespace tagwright
