#include "platform/qt/QtPlatform.h"
#include "ui/frmTessarin.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setDesktopFileName("example.velmora.tessarin");
    tessarin::qt::QtPlatform platform;
    tessarin::frmTessarin window(platform);
    window.Show();
    return QApplication::exec();
}
