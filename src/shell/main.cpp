#include "platform/services/application.h"
#include "shell/startup.h"

int main(int argc, char** argv) {
  tagwright::Application application(argc, argv);
  tagwright::StartProgram();
  return application.Run();
}
