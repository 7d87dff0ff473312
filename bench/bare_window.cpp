// The least that a Qt program with a text box can be: what the start-up, memory and idle time of the program are
// compared with.
#include <QApplication>
#include <QMainWindow>
#include <QPlainTextEdit>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("Bare window"));
  window.setCentralWidget(new QPlainTextEdit(&window));
  window.resize(800, 600);
  window.show();
  return QApplication::exec();
}
