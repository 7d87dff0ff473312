// Checks that each form is what Qt Designer's own library would save. A change made in Qt Designer then changes no
// other lines of the form.
//
//   designed_forms [--rewrite] FOLDER-OR-FORM...
//
// With --rewrite, a form that differs is saved as the library would save it. Enumerators are written in the format of
// Qt 6.4, which later versions can read.
#include <QApplication>
#include <QDesignerComponents>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerFormWindowManagerInterface>
#include <QDesignerIntegration>
#include <QDirIterator>
#include <QFile>
#include <QHashFunctions>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <cstdio>
#include <memory>

namespace {

// Since 6.8 Qt Designer also writes the enumeration: Qt::Orientation::Horizontal for Qt::Horizontal.
QString WithShortEnumerators(QString form) {
  static const QRegularExpression scoped(QStringLiteral("\\b(Q\\w+)::\\w+::(?=\\w)"));
  return form.replace(scoped, QStringLiteral("\\1::"));
}

// The form as Qt Designer saves it; empty if Qt Designer can't read it. Each form needs a new editor object, because
// such an object also lists the classes of earlier forms.
QByteArray AsSaved(const QString& path, const QByteArray& form) {
  const std::unique_ptr<QDesignerFormEditorInterface> editor(QDesignerComponents::createFormEditor(nullptr));
  new QDesignerIntegration(editor.get(), editor.get());
  const std::unique_ptr<QDesignerFormWindowInterface> window(editor->formWindowManager()->createFormWindow());
  window->setFileName(path);
  if (window->setContents(QString::fromUtf8(form))) return WithShortEnumerators(window->contents()).toUtf8();
  return {};
}

QStringList Forms(const QStringList& places) {
  QStringList forms;
  for (const QString& place : places) {
    if (place.endsWith(QLatin1String(".ui"))) forms += place;
    for (QDirIterator folder(place, {QStringLiteral("*.ui")}, QDir::Files, QDirIterator::Subdirectories);
         folder.hasNext();)
      forms += folder.next();
  }
  forms.sort();
  return forms;
}

}  // namespace

int main(int argc, char** argv) {
  // Platform, style and font are the same on every machine, since Qt Designer saves sizes that depend on them.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QHashSeed::setDeterministicGlobalSeed();  // button groups are saved in the order of a hash table
  QApplication::setStyle(QStringLiteral("fusion"));
  QApplication application(argc, argv);
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
  QCoreApplication::setLibraryPaths({});  // without Qt Designer's plug-ins, which load a web engine
  QLoggingCategory::setFilterRules(QStringLiteral("qt.core.qobject.connect=false"));  // no property editor exists here

  QStringList places = QCoreApplication::arguments().mid(1);
  const bool rewrite = places.removeAll(QStringLiteral("--rewrite")) > 0;
  const QStringList forms = Forms(places);
  int differ = 0;
  for (const QString& path : forms) {
    QFile file(path);
    const QByteArray form = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const QByteArray saved = AsSaved(path, form);
    if (saved == form && !form.isEmpty()) continue;
    file.close();
    if (rewrite && !saved.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(saved) == saved.size()) continue;
    ++differ;
    std::fprintf(stderr, "%s isn't what Qt Designer would save; this writes it so:\n  %s --rewrite %s\n",
                 qUtf8Printable(path), argv[0], qUtf8Printable(path));
  }
  if (forms.isEmpty()) std::fprintf(stderr, "usage: designed_forms [--rewrite] FOLDER-OR-FORM...\n");
  return differ > 0 || forms.isEmpty() ? 1 : 0;
}
