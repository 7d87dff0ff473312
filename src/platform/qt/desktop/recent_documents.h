// Adds opened and saved files to the desktop's list of recent documents, in order and in a background thread. A list
// that is damaged, not writable or locked for too long is not changed. Failures are not reported.
#pragma once

#include <QString>
#include <QThreadPool>

namespace pelmar {

class RecentDocuments {
 public:
  explicit RecentDocuments(QString list_path);
  // Calls Wait.
  ~RecentDocuments();
  RecentDocuments(const RecentDocuments&) = delete;
  RecentDocuments& operator=(const RecentDocuments&) = delete;

  // `path` is absolute.
  void Add(const QString& path);
  // Waits until all added files are in the list.
  void Wait();

 private:
  QString list_path_;
  QThreadPool pool_;
};

// Adds the path to the list in the calling thread. Gives up if the list stays locked for 100 ms.
void AddToRecentList(const QString& list_path, const QString& path);

}  // namespace pelmar
