// SPDX-License-Identifier: MIT
#include "Program.h"
#include "qt/QtPlatform.h"
#include "qt/QtToolkit.h"
#include "ui/frmTessarin.h"

#include <QApplication>

int main(int argc, char** argv) {
    // By this part of Wayland's protocol GNOME would learn that a box is modal, fix it over the
    // middle of the window and darken the window, so that the fields could not be seen.
    qputenv("QT_WAYLAND_DISABLED_INTERFACES", "xdg_wm_dialog_v1");
    QApplication::setDesktopFileName(tessarin::ApplicationId); // registered by the next line
    const QApplication application(argc, argv);
    tessarin::qt::QtPlatform platform(tessarin::ProgramVersion);
    tessarin::qt::QtToolkit toolkit(platform);
    tessarin::frmTessarin window(toolkit);
    window.Show();
    return QApplication::exec();
}
