// A small window that a text or a file can be dragged from, as from another program.
//
//     drag_source text TEXT    drag_source file PATH

#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <cstdlib>

namespace {

class DragSource : public QLabel {
public:
    DragSource(QString kind, QString content)
        : QLabel(QStringLiteral("drag me")), kind_(std::move(kind)), content_(std::move(content)) {
        setWindowTitle(QStringLiteral("Drag source"));
        setWindowFlag(Qt::FramelessWindowHint);
        setFixedSize(100, 40);
    }

protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        if ((event->buttons() & Qt::LeftButton) == 0) return;
        auto* dragged = new QMimeData;
        if (kind_ == QStringLiteral("file")) {
            dragged->setUrls({QUrl::fromLocalFile(content_)});
        } else {
            dragged->setText(content_);
        }
        auto* drag = new QDrag(this);
        drag->setMimeData(dragged);
        drag->exec(Qt::CopyAction);
    }

private:
    QString kind_;
    QString content_;
};

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) return EXIT_FAILURE;
    DragSource source(arguments[1], arguments[2]);
    // Without a window manager windows come where they ask to be.
    source.move(1100, 20);
    source.show();
    return QApplication::exec();
}
