// Reads forms with the form editor's own library and compares them with what it would save, so that a form opened there
// and saved differs by the change that was made alone.
//
//   designed_forms [--rewrite] FOLDER-OR-FORM...
//
// With --rewrite the forms that differ are written as the editor would. Enumerators stand in the forms as Qt 6.4 saves
// them, which every later editor reads too.
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

// From 6.8 on the editor names the enumeration as well: Qt::Orientation::Horizontal for Qt::Horizontal.
QString WithShortEnumerators(QString form) {
  static const QRegularExpression scoped(QStringLiteral("\\b(Q\\w+)::\\w+::(?=\\w)"));
  return form.replace(scoped, QStringLiteral("\\1::"));
}

// As the editor would save it; nothing where it can't read it. An editor of its own for each, since one remembers the
// classes of the forms before and lists them in that order.
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
  // The same sizes on every machine: the editor saves what a form's contents take.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QHashSeed::setDeterministicGlobalSeed();  // the groups of buttons are saved as they lie in a hash table
  QApplication::setStyle(QStringLiteral("fusion"));
  QApplication application(argc, argv);
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
  QCoreApplication::setLibraryPaths({});  // without the editor's plug-ins, which bring a web engine
  QLoggingCategory::setFilterRules(QStringLiteral("qt.core.qobject.connect=false"));  // there is no property editor

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
