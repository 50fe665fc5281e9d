// drop_source FILE: a window from which the file can be dragged with the mouse, as from a file manager. Exits
// after the drag, with 0 when the drop was accepted, else with 1.

#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <QTextStream>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

class DropSource : public QLabel {
public:
    explicit DropSource(const QString& file)
        : QLabel(QUrl::fromLocalFile(file).fileName())
        , url(QUrl::fromLocalFile(file))
    {
        setWindowTitle(u"Drop source"_s);
        setFixedSize(160, 60);
        move(screen()->availableGeometry().bottomRight() -
             rect().bottomRight()); // does not cover the drop target
    }

protected:
    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (!event->buttons().testFlag(Qt::LeftButton))
            return;
        auto* dragged = new QMimeData;
        dragged->setUrls({url});
        auto* drag = new QDrag(this);
        drag->setMimeData(dragged);
        const Qt::DropAction action = drag->exec(Qt::CopyAction);
        hide();
        QTextStream(stdout) << (action == Qt::CopyAction ? "taken" : "refused") << Qt::endl;
    }

private:
    QUrl url;
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    DropSource source(QApplication::arguments().value(1));
    source.show();
    return QApplication::exec();
}
