// Adds opened and saved files to the desktop's list of recent documents, in order and in a background thread. A list
// that is damaged or not writable is not changed. Failures are not reported.
#pragma once

#include <QString>
#include <QThreadPool>
#include <string>

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
  // Waits until the thread has no more files to add.
  void Wait();

 private:
  QString list_path_;
  QThreadPool pool_;
};

// Adds the file `path` (absolute) to a list of recent documents, as a file that this program has just opened. `xbel` is
// the content of the list, and the result is the new content. An empty `xbel` gives a new list, a damaged one gives "".
std::string AddBookmark(const std::string& xbel, const std::string& path, const std::string& mime);

}  // namespace pelmar
