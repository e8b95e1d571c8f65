// A window with nothing in it: the least that a program of the toolkit needs.
#include <QApplication>
#include <QWidget>

int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    QWidget window;
    window.resize(640, 480);
    window.show();
    return QApplication::exec();
}
