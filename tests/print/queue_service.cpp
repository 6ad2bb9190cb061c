#include "print/queue_service.h"

#include <arpa/inet.h>
#include <cups/cups.h>
#include <netinet/in.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace tagwright {
namespace {

namespace fs = std::filesystem;

constexpr const char* kScheduler = "/usr/sbin/cupsd";
constexpr const char* kFilters = "/usr/lib/cups/filter/";
constexpr int kLongestWait = 20'000;  // milliseconds, on a machine that is busy with other things
constexpr int kStep = 20;

void Write(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
  if (!fs::exists(file)) throw std::runtime_error("cannot write " + file.string());
}

// A socket that a printer would listen on, at a port that happens to be free.
int Listen() {
  const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
      listen(listener, 8) != 0) {
    throw std::runtime_error("no socket on loopback");
  }
  return listener;
}

int PortOf(int listener) {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
  return ntohs(address.sin_port);
}

bool Answers(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  const int client = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const bool connected =
      connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
  close(client);
  return connected;
}

bool ComesToBe(const auto& holds) {
  for (int waited = 0; waited < kLongestWait; waited += kStep) {
    if (holds()) return true;
    usleep(kStep * 1000);
  }
  return false;
}

bool Readable(int descriptor, int milliseconds) {
  pollfd waiting{descriptor, POLLIN, 0};
  return poll(&waiting, 1, milliseconds) == 1;
}

// A choice of the page description with one entry for each paper.
std::string PaperChoice(const std::string& name) {
  return "*OpenUI *" + name + ": PickOne\n*OrderDependency: 10 AnySetup *" + name + "\n*Default" +
         name + ": A4\n*" + name + " A4: \"<</PageSize[595 842]>>setpagedevice\"\n*" + name +
         " Letter: \"<</PageSize[612 792]>>setpagedevice\"\n*CloseUI: *" + name + "\n";
}

// What can be printed on is told by its corners, in points from the bottom left: 4 mm are dead at
// the left, 14 below, 6 at the right, 7 above.
std::string PageDescription(const QueueModel& model) {
  const std::string resolution = std::to_string(model.pixels_per_inch);
  return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
         "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"TEST.PPD\"\n"
         "*Manufacturer: \"Test\"\n*Product: \"(Test)\"\n*ModelName: \"Test\"\n"
         "*ShortNickName: \"Test\"\n*NickName: \"Test\"\n*PSVersion: \"(3010.000) 0\"\n"
         "*LanguageLevel: \"3\"\n*ColorDevice: True\n*DefaultColorSpace: RGB\n"
         "*FileSystem: False\n*cupsFilter2: \"" +
         model.filter + " 0 -\"\n" + PaperChoice("PageSize") + PaperChoice("PageRegion") +
         "*DefaultImageableArea: A4\n*ImageableArea A4: \"11 40 577 822\"\n"
         "*ImageableArea Letter: \"11 40 594 772\"\n*DefaultPaperDimension: A4\n"
         "*PaperDimension A4: \"595 842\"\n*PaperDimension Letter: \"612 792\"\n"
         "*OpenUI *Resolution: PickOne\n*OrderDependency: 20 AnySetup *Resolution\n"
         "*DefaultResolution: " +
         resolution + "dpi\n*Resolution " + resolution + "dpi: \"<</HWResolution[" + resolution +
         " " + resolution + "]>>setpagedevice\"\n*CloseUI: *Resolution\n";
}

std::string QueueEntry(const std::string& name, int port, bool accepting) {
  return "<Printer " + name + ">\nInfo " + name +
         "\nDeviceURI socket://127.0.0.1:" + std::to_string(port) +
         "/?waiteof=false&snmp=false\nState Idle\nAccepting " + (accepting ? "Yes" : "No") +
         "\nErrorPolicy abort-job\nOption print-scaling fit\n</Printer>\n";
}

pid_t Run(const std::vector<std::string>& arguments) {
  std::vector<char*> raw;
  for (const std::string& argument : arguments) raw.push_back(const_cast<char*>(argument.c_str()));
  raw.push_back(nullptr);
  const pid_t pid = fork();
  if (pid < 0) throw std::runtime_error("no new process");
  if (pid > 0) return pid;
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  execv(raw[0], raw.data());
  _exit(127);
}

}  // namespace

const std::vector<QueueModel>& QueueModels() {
  static const std::vector<QueueModel> models = {
      {"coarse", "application/vnd.cups-postscript application/postscript", 300, "%!PS"},
      {"margins", "application/vnd.cups-pdf application/pdf", 600, "%PDF"},
  };
  return models;
}

bool QueueService::Installed() {
  const std::string filters = kFilters;
  return fs::exists(kScheduler) && fs::exists(filters + "pdftopdf") &&
         fs::exists(filters + "pdftops");
}

// Filters of a scheduler that root started run as somebody else, who has to reach the folder.
QueueService::QueueService() {
  fs::permissions(folder_.Path(), fs::perms(0755));
  for (const char* name : {"root", "root/ppd", "state", "cache", "spool", "tmp"}) {
    fs::create_directory(folder_.File(name));
  }
  fs::permissions(folder_.File("tmp"), fs::perms(01777));
  fs::copy_file(kScheduler, folder_.File("cupsd"));
  for (const QueueModel& model : QueueModels()) {
    listeners_.push_back(Listen());
    Write(folder_.File("root/ppd/" + model.name + ".ppd"), PageDescription(model));
  }
  WriteSettings();
  WriteQueues("", "");
  setenv("CUPS_SERVER", folder_.File("service").c_str(), 1);
  Start();
}

QueueService::~QueueService() {
  Stop();
  for (const int listener : listeners_) close(listener);
}

void QueueService::Start() {
  pid_ = Run({folder_.File("cupsd"), "-f", "-c", folder_.File("cupsd.conf"), "-s",
              folder_.File("cups-files.conf")});
  if (!ComesToBe([&] { return Answers(folder_.File("service")); })) {
    throw std::runtime_error("the print service did not start");
  }
}

void QueueService::Stop() {
  if (pid_ < 0) return;
  kill(pid_, SIGTERM);
  if (!ComesToBe([&] { return waitpid(pid_, nullptr, WNOHANG) == pid_; })) {
    kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
  }
  pid_ = -1;
  fs::remove(folder_.File("service"));
}

void QueueService::StartWith(const std::string& without, const std::string& refusing) {
  Stop();
  WriteQueues(without, refusing);
  Start();
  whole_ = without.empty() && refusing.empty();
}

void QueueService::Remove(const std::string& queue) { StartWith(queue, ""); }

void QueueService::Refuse(const std::string& queue) { StartWith("", queue); }

void QueueService::Restore() {
  if (!whole_ || pid_ < 0) StartWith("", "");
  for (const QueueModel& model : QueueModels()) {
    while (Readable(ListenerOf(model.name), 0)) Received(model.name);
  }
}

void QueueService::WriteSettings() {
  const std::string all = "  Order allow,deny\n  Allow all\n";
  Write(folder_.File("cupsd.conf"), "Listen " + folder_.File("service") +
                                        "\nBrowsing Off\nDefaultAuthType None\nWebInterface No\n"
                                        "<Location />\n" +
                                        all + "</Location>\n<Policy default>\n<Limit All>\n" + all +
                                        "</Limit>\n</Policy>\n");
  Write(folder_.File("cups-files.conf"),
        "ServerRoot " + folder_.File("root") + "\nStateDir " + folder_.File("state") +
            "\nCacheDir " + folder_.File("cache") + "\nRequestRoot " + folder_.File("spool") +
            "\nTempDir " + folder_.File("tmp") + "\nAccessLog " + folder_.File("access.log") +
            "\nErrorLog " + folder_.File("error.log") + "\nPageLog " + folder_.File("page.log") +
            "\nPrintcap\nSandboxing relaxed\n");
}

void QueueService::WriteQueues(const std::string& without, const std::string& refusing) {
  std::string queues;
  for (std::size_t i = 0; i < listeners_.size(); ++i) {
    const std::string& name = QueueModels()[i].name;
    if (name == without) continue;
    queues += QueueEntry(name, PortOf(listeners_[i]), name != refusing);
  }
  Write(folder_.File("root/printers.conf"), queues);
}

int QueueService::ListenerOf(const std::string& queue) const {
  const auto& models = QueueModels();
  const auto found =
      std::ranges::find_if(models, [&](const QueueModel& model) { return model.name == queue; });
  return listeners_[static_cast<std::size_t>(found - models.begin())];
}

std::string QueueService::Received(const std::string& queue) {
  const std::string path = folder_.File("document-" + std::to_string(++documents_));
  std::ofstream file(path, std::ios::binary);
  if (!Readable(ListenerOf(queue), kLongestWait)) {
    std::ifstream log(folder_.File("error.log"));
    ADD_FAILURE() << "nothing arrived at " << queue << "\n" << log.rdbuf();
    return path;
  }
  const int connection = accept(ListenerOf(queue), nullptr, nullptr);
  std::array<char, 65536> part;
  for (ssize_t n; (n = read(connection, part.data(), part.size())) > 0;) {
    file.write(part.data(), n);
  }
  close(connection);
  return path;
}

std::string QueueService::OptionOfLastJob(const std::string& option) {
  cups_job_t* jobs = nullptr;
  const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
  int last = 0;
  for (int i = 0; i < count; ++i) last = std::max(last, jobs[i].id);
  cupsFreeJobs(count, jobs);
  ipp_t* question = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  const std::string job = "ipp://localhost/jobs/" + std::to_string(last);
  ippAddString(question, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, job.c_str());
  ipp_t* answer = cupsDoRequest(CUPS_HTTP_DEFAULT, question, "/jobs");
  const char* told =
      ippGetString(ippFindAttribute(answer, option.c_str(), IPP_TAG_ZERO), 0, nullptr);
  const std::string value = told ? told : "";
  ippDelete(answer);
  return value;
}

bool QueueService::AnythingAt(const std::string& queue) {
  constexpr int kEnough = 2000;  // many times what a page takes
  return Readable(ListenerOf(queue), kEnough);
}

}  // namespace tagwright
