// Shows the program's window, or with the argument "bare" an empty one with 81 labels, and ends as
// soon as it has been painted.
#include "platform/qt/QtPlatform.h"
#include "ui/frmTessarin.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>

namespace {

class UntilFirstPaint : public QObject {
protected:
    bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) QTimer::singleShot(0, qApp, &QApplication::quit);
        return false;
    }
};

int RunBare() {
    QWidget window;
    window.setFixedSize(590, 478);
    for (int k = 0; k < 81; ++k) {
        auto* const label = new QLabel(QString::number(k % 9 + 1), &window);
        label->setGeometry(20 + k % 9 * 40, 30 + k / 9 * 40, 40, 40);
    }
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    UntilFirstPaint filter;
    qApp->installEventFilter(&filter);
    if (argc > 1 && QByteArray(argv[1]) == "bare") return RunBare();
    tessarin::qt::QtPlatform platform;
    tessarin::frmTessarin window(platform);
    window.Show();
    return QApplication::exec();
}
