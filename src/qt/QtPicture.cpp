#include "qt/QtPicture.h"

#include "qt/QtLook.h"

#include <QPainter>

namespace tessarin::qt {

void QtPicture::FileChanged() {
    mPixmap = QPixmap();
    update();
}

void QtPicture::paintEvent(QPaintEvent* /*event*/) {
    if (mPixmap.isNull()) mPixmap.load(ResourcePath(mPicture.File()));
    QPainter(this).drawPixmap(rect(), mPixmap);
}

} // namespace tessarin::qt
