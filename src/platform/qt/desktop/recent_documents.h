// Notes opened and saved files in the desktop's list of recent documents, off the interface thread and in order.
// It is a courtesy: a list that is damaged, locked for long or not writable is left as it is, and nobody is told.
#pragma once

#include <QString>
#include <QThreadPool>

namespace pelmar {

class RecentDocuments {
 public:
  explicit RecentDocuments(QString list_path);
  // Waits for what is under way.
  ~RecentDocuments();
  RecentDocuments(const RecentDocuments&) = delete;
  RecentDocuments& operator=(const RecentDocuments&) = delete;

  // `path` is absolute.
  void Add(const QString& path);
  void Wait();

 private:
  QString list_path_;
  QThreadPool pool_;
};

// The work itself, on the caller's thread. Gives up when the list stays locked for 100 ms.
void AddToRecentList(const QString& list_path, const QString& path);

}  // namespace pelmar
