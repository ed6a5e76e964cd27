#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QUrl>
#include <cstdio>

namespace {

/// The window of another program, which says what happens to it; a folder can be dragged from it, as from a file manager.
class OtherWindow : public QRasterWindow {
public:
    explicit OtherWindow(const QString& folder)
        : folder_(folder)
    {
        setTitle(QStringLiteral("Other program"));
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter(this).fillRect(QRect({0, 0}, size()), Qt::white);
    }

    void mousePressEvent(QMouseEvent* event) override { say("pressed", event); }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (!folder_.isEmpty() && event->buttons().testFlag(Qt::LeftButton)) {
            auto* const data = new QMimeData; // the drag's
            data->setUrls({QUrl::fromLocalFile(folder_)});
            auto* const drag = new QDrag(this); // Qt deletes it
            drag->setMimeData(data);
            drag->exec(Qt::CopyAction);
        }
    }

    void focusOutEvent(QFocusEvent* /*event*/) override
    {
        std::puts("focus lost");
        std::fflush(stdout);
    }

private:
    static void say(const char* what, const QMouseEvent* event)
    {
        const QPoint place = event->globalPosition().toPoint();
        std::printf("%s at %d %d\n", what, place.x(), place.y());
        std::fflush(stdout);
    }

    QString folder_;
};

} // namespace

/// usage: other_program X Y WIDTH HEIGHT [FOLDER]; without a width it takes the whole screen
int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    if (words.size() < 5) {
        return 2;
    }
    OtherWindow window(words.value(5));
    const QRect place(words[1].toInt(), words[2].toInt(), words[3].toInt(), words[4].toInt());
    if (place.isEmpty()) {
        window.showFullScreen();
    } else {
        window.setGeometry(place);
        window.show();
    }
    return QGuiApplication::exec();
}
