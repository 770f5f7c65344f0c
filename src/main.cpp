// SPDX-License-Identifier: MIT
#include "Program.h"
#include "qt/QtPlatform.h"
#include "qt/QtToolkit.h"
#include "ui/frmTessarin.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setDesktopFileName(tessarin::ApplicationId);
    tessarin::qt::QtPlatform platform(tessarin::ProgramVersion);
    tessarin::qt::QtToolkit toolkit(platform);
    tessarin::frmTessarin window(toolkit);
    window.Show();
    return QApplication::exec();
}
