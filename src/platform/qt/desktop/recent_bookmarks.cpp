#include "platform/qt/desktop/recent_bookmarks.h"

#include <QUrl>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <utility>
#include <vector>

#include "platform/qt/convert.h"

namespace pelmar {
namespace {

QString BookmarkNamespace() { return QStringLiteral("http://www.freedesktop.org/standards/desktop-bookmarks"); }
QString MimeNamespace() { return QStringLiteral("http://www.freedesktop.org/standards/shared-mime-info"); }
QString MetadataOwner() { return QStringLiteral("http://freedesktop.org"); }
QString ProgramName() { return QStringLiteral("Pelmar VEX"); }
QString ProgramCommand() { return QStringLiteral("'pelmar-vex %f'"); }

// The elements on the way from the root to the applications in the entry of our file. All other elements are kOther.
enum class Place { kOther, kRoot, kEntry, kInfo, kMetadata, kApplications };

// Copies the list token by token and inserts our entry. Names keep the prefixes of the file. Our own elements declare
// their namespaces, so that they are valid with any prefixes in the file.
class BookmarkCopier {
 public:
  BookmarkCopier(const QByteArray& xbel, QString path, QString mime, const QDateTime& now)
      : reader_(xbel), writer_(&result_), path_(std::move(path)), mime_(std::move(mime)) {
    time_ = now.toUTC().toString(Qt::ISODate);
  }

  QByteArray CopyAndAdd() {
    while (!reader_.atEnd()) {
      reader_.readNext();
      if (!CopyToken()) return {};
    }
    if (reader_.hasError() || !added_) return {};
    if (!result_.endsWith('\n')) result_ += '\n';
    return result_;
  }

  QByteArray MakeNew() {
    writer_.writeStartDocument();
    writer_.writeCharacters(QStringLiteral("\n"));
    writer_.writeStartElement(QStringLiteral("xbel"));
    writer_.writeAttribute(QStringLiteral("xmlns:bookmark"), BookmarkNamespace());
    writer_.writeAttribute(QStringLiteral("xmlns:mime"), MimeNamespace());
    writer_.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    declared_ = true;
    WriteEntry();
    writer_.writeEndElement();
    return result_ + '\n';
  }

 private:
  bool CopyToken() {
    switch (reader_.tokenType()) {
      case QXmlStreamReader::StartDocument:
        writer_.writeStartDocument(QStringLiteral("1.0"));
        writer_.writeCharacters(QStringLiteral("\n"));
        return true;
      case QXmlStreamReader::StartElement:
        return StartElement();
      case QXmlStreamReader::EndElement:
        EndElement();
        return true;
      case QXmlStreamReader::EndDocument:
      case QXmlStreamReader::Invalid:
        return true;
      case QXmlStreamReader::DTD:
        writer_.writeDTD(reader_.text().toString());
        return true;
      default:
        writer_.writeCurrentToken(reader_);
        return true;
    }
  }

  bool StartElement() {
    const Place place = PlaceOfElement();
    if (places_.empty() && place != Place::kRoot) return false;
    writer_.writeStartElement(reader_.qualifiedName().toString());
    for (const auto& declaration : reader_.namespaceDeclarations()) {
      const QString prefix = declaration.prefix().toString();
      writer_.writeAttribute(prefix.isEmpty() ? QStringLiteral("xmlns") : QStringLiteral("xmlns:") + prefix,
                             declaration.namespaceUri().toString());
      if (place == Place::kRoot) NoteDeclaration(prefix, declaration.namespaceUri());
    }
    if (place == Place::kEntry) {
      found_ = true;
      WriteAttributes({{QStringLiteral("modified"), time_}, {QStringLiteral("visited"), time_}});
    } else if (IsOurApplication()) {
      const int count = qMax(0, reader_.attributes().value(QLatin1String("count")).toInt());
      WriteAttributes(ApplicationFields(count < INT_MAX ? count + 1 : count));
      added_ = true;
    } else {
      WriteAttributes({});
    }
    if (reader_.namespaceUri() == MimeNamespace() && Inside() == Place::kMetadata) typed_ = true;
    places_.push_back(place);
    return true;
  }

  void EndElement() {
    const Place place = places_.back();
    places_.pop_back();
    if (!added_) {
      if (place == Place::kApplications) WriteApplication();
      if (place == Place::kMetadata) WriteMetadataContent();
      if (place == Place::kInfo) WriteMetadata();
      if (place == Place::kEntry) WriteInfo();
      if (place == Place::kRoot && !found_) WriteEntry();
    }
    writer_.writeEndElement();
  }

  [[nodiscard]] Place Inside() const { return places_.empty() ? Place::kOther : places_.back(); }

  [[nodiscard]] Place PlaceOfElement() const {
    const auto name = reader_.name();
    if (places_.empty()) return name == QLatin1String("xbel") ? Place::kRoot : Place::kOther;
    switch (Inside()) {
      case Place::kRoot:
        return !found_ && name == QLatin1String("bookmark") && IsOurFile() ? Place::kEntry : Place::kOther;
      case Place::kEntry:
        return name == QLatin1String("info") ? Place::kInfo : Place::kOther;
      case Place::kInfo:
        return name == QLatin1String("metadata") &&
                       reader_.attributes().value(QLatin1String("owner")) == MetadataOwner()
                   ? Place::kMetadata
                   : Place::kOther;
      case Place::kMetadata:
        return name == QLatin1String("applications") && reader_.namespaceUri() == BookmarkNamespace()
                   ? Place::kApplications
                   : Place::kOther;
      default:
        return Place::kOther;
    }
  }

  // Compares decoded paths, since programs encode different characters.
  [[nodiscard]] bool IsOurFile() const {
    const QUrl url = QUrl::fromEncoded(reader_.attributes().value(QLatin1String("href")).toUtf8());
    return url.isLocalFile() && PathToQString(PathOfUrl(url)) == path_;
  }

  [[nodiscard]] bool IsOurApplication() const {
    return !added_ && Inside() == Place::kApplications && reader_.name() == QLatin1String("application") &&
           reader_.attributes().value(QLatin1String("name")) == ProgramName();
  }

  using Fields = std::vector<std::pair<QString, QString>>;

  [[nodiscard]] Fields ApplicationFields(int count) const {
    return {{QStringLiteral("name"), ProgramName()},
            {QStringLiteral("exec"), ProgramCommand()},
            {QStringLiteral("modified"), time_},
            {QStringLiteral("count"), QString::number(count)}};
  }

  // Writes the attributes of the current element. `fields` replace attributes of the same name; the others are added.
  void WriteAttributes(Fields fields) {
    for (const auto& attribute : reader_.attributes()) {
      QString value = attribute.value().toString();
      for (auto field = fields.begin(); field != fields.end(); ++field) {
        if (attribute.qualifiedName() != field->first) continue;
        value = field->second;
        fields.erase(field);
        break;
      }
      writer_.writeAttribute(attribute.qualifiedName().toString(), value);
    }
    for (const auto& [name, value] : fields) writer_.writeAttribute(name, value);
  }

  void NoteDeclaration(const QString& prefix, QStringView uri) {
    bookmark_declared_ |= prefix == QLatin1String("bookmark") && uri == BookmarkNamespace();
    mime_declared_ |= prefix == QLatin1String("mime") && uri == MimeNamespace();
    declared_ = bookmark_declared_ && mime_declared_;
  }

  void Declare() {
    if (declared_) return;
    writer_.writeAttribute(QStringLiteral("xmlns:bookmark"), BookmarkNamespace());
    writer_.writeAttribute(QStringLiteral("xmlns:mime"), MimeNamespace());
  }

  void WriteEntry() {
    writer_.writeCharacters(QStringLiteral("\n  "));
    writer_.writeStartElement(QStringLiteral("bookmark"));
    writer_.writeAttribute(QStringLiteral("href"),
                           QString::fromLatin1(UrlOfPath(PathFromQString(path_)).toEncoded(QUrl::FullyEncoded)));
    for (const char* name : {"added", "modified", "visited"}) writer_.writeAttribute(QLatin1String(name), time_);
    WriteInfo();
    writer_.writeEndElement();
    writer_.writeCharacters(QStringLiteral("\n"));
  }

  void WriteInfo() {
    writer_.writeStartElement(QStringLiteral("info"));
    WriteMetadata();
    writer_.writeEndElement();
  }

  void WriteMetadata() {
    writer_.writeStartElement(QStringLiteral("metadata"));
    writer_.writeAttribute(QStringLiteral("owner"), MetadataOwner());
    typed_ = false;
    WriteMetadataContent();
    writer_.writeEndElement();
  }

  void WriteMetadataContent() {
    if (!typed_) {
      writer_.writeStartElement(QStringLiteral("mime:mime-type"));
      Declare();
      writer_.writeAttribute(QStringLiteral("type"), mime_);
      writer_.writeEndElement();
    }
    writer_.writeStartElement(QStringLiteral("bookmark:applications"));
    Declare();
    WriteApplication();
    writer_.writeEndElement();
  }

  void WriteApplication() {
    writer_.writeStartElement(QStringLiteral("bookmark:application"));
    Declare();
    for (const auto& [name, value] : ApplicationFields(1)) writer_.writeAttribute(name, value);
    writer_.writeEndElement();
    added_ = true;
  }

  QXmlStreamReader reader_;
  QByteArray result_;
  QXmlStreamWriter writer_;
  QString path_, mime_, time_;
  std::vector<Place> places_;
  bool found_ = false;  // the entry of our file
  bool added_ = false;  // our application element
  bool typed_ = false;  // the MIME type in the current metadata
  bool bookmark_declared_ = false, mime_declared_ = false, declared_ = false;
};

}  // namespace

QByteArray AddBookmark(const QByteArray& xbel, const QString& path, const QString& mime, const QDateTime& now) {
  BookmarkCopier copier(xbel, path, mime, now);
  return xbel.isEmpty() ? copier.MakeNew() : copier.CopyAndAdd();
}

}  // namespace pelmar
