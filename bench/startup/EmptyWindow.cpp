// The smallest Qt program with one empty window: what the start of the program is measured against.

#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QWidget window;
    window.show();
    return QApplication::exec();
}
