// The least that a program of this kind can be: a window with an empty text box. Start-up is
// measured against it.
#include <QApplication>
#include <QMainWindow>
#include <QPlainTextEdit>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QPlainTextEdit);
    window.setGeometry(0, 0, 1280, 900);
    window.show();
    return QApplication::exec();
}
