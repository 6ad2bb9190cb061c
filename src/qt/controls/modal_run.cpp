#include "qt/controls/modal_run.h"

namespace tagwright {
namespace {

int modal_runs = 0;

}  // namespace

ModalRun::ModalRun() { ++modal_runs; }
int ModalRun::Count() { return modal_runs; }

}  // namespace tagwright
