// A print service of a test's own: a scheduler of the real one with queues whose printers are
// sockets that the test listens on. What a printer receives is what would come out of it.
//
// The scheduler is a copy in a folder of the test, because some systems confine the installed one
// by its path; its sockets, queues and spool lie there too, and nothing of the machine's own
// service is touched.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "support/test_support.h"

namespace tagwright {

// One queue. Its page description has A4 and Letter, one resolution, and dead margins that differ
// on all four sides. Who keeps the queue has it fit every page to what lies within them, unless a
// job says otherwise.
struct QueueModel {
  std::string name;
  std::string filter;  // from what kind of file to what kind the printer wants
  int pixels_per_inch;
  std::string language;  // what a received document begins with
};

class QueueService {
 public:
  // Whether the scheduler and the filters that the queues need are installed.
  static bool Installed();

  // Starts it and makes it the one that this process prints on. There is one at a time.
  QueueService();
  ~QueueService();
  QueueService(const QueueService&) = delete;
  QueueService& operator=(const QueueService&) = delete;

  // The service is gone, and back; its queues, sockets and names are the same.
  void Stop();
  void Start();

  // Takes a queue away.
  void Remove(const std::string& queue);
  // The queue accepts no jobs any more.
  void Refuse(const std::string& queue);
  // All queues are there and accept jobs, the service runs, and no printer has a document waiting.
  void Restore();

  // Waits for the next document that `queue` sends to its printer; the path of a file that holds
  // it. Fails the test when none comes.
  std::string Received(const std::string& queue);
  // What the service has noted for an option of the job that came last; empty when nothing.
  static std::string OptionOfLastJob(const std::string& option);
  // Whether a document waits at the printer. Gives the service the time to have sent one.
  bool AnythingAt(const std::string& queue);

 private:
  void WriteSettings();
  void WriteQueues(const std::string& without, const std::string& refusing);
  void StartWith(const std::string& without, const std::string& refusing);
  int ListenerOf(const std::string& queue) const;

  TempFolder folder_;
  std::vector<int> listeners_;  // one for each queue
  pid_t pid_ = -1;
  int documents_ = 0;
  bool whole_ = true;  // no queue is missing or refuses
};

// "margins" takes PDF at 600 pixels to the inch, "coarse" PostScript at 300.
const std::vector<QueueModel>& QueueModels();

}  // namespace tagwright
