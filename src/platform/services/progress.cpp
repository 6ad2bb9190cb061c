#include "platform/services/progress.h"

namespace tagwright {
namespace {

ProgressService* service_in_force = nullptr;

}  // namespace

void SetProgressService(ProgressService* service) { service_in_force = service; }

Progress::Progress(const std::string& title) {
  if (service_in_force) view_ = service_in_force->Open(title);
}

Progress::~Progress() = default;

void Progress::Tell(const std::string& text, double share) {
  if (view_) view_->Tell(text, share);
}

bool Progress::GoesOn() { return !view_ || view_->GoesOn(); }

}  // namespace tagwright
