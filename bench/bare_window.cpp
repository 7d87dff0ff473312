// A minimal Qt program with a text box, to compare with the program's start-up, memory and idle time.
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
