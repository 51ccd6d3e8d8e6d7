// SPDX-License-Identifier: MIT
// Another program, from which a person drags files or copies a picture: drag_source FILE...
// A press on its window begins to drag the files; the key C copies the first one's picture.
#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QUrl>

namespace {

class Source : public QLabel {
public:
    explicit Source(const QStringList& files) : m_files(files) {
        setText(QStringLiteral("Drag from here"));
        setWindowTitle(QStringLiteral("Drag source"));
        setFixedSize(200, 120);
    }

protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        if (!event->buttons().testFlag(Qt::LeftButton)) return;
        auto* const files = new QMimeData;
        QList<QUrl> urls;
        for (const QString& file : m_files)
            urls.append(QUrl::fromLocalFile(file));
        files->setUrls(urls);
        auto* const drag = new QDrag(this);
        drag->setMimeData(files);
        drag->exec(Qt::CopyAction);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_C) QApplication::clipboard()->setImage(QImage(m_files.value(0)));
    }

private:
    QStringList m_files;
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    Source source(QApplication::arguments().mid(1));
    source.show();
    return QApplication::exec();
}
