#pragma once

#include "qt/QtLook.h"
#include "qt/QtPeer.h"

#include <QPainter>
#include <QPixmap>

namespace tessarin::qt {

/// Shows one of the program's pictures. Its file is read when it is first painted.
class QtPicture : public QWidget, public QtPeer {
public:
    QtPicture(Control& picture, QtForm& form, QWidget& parent)
        : QWidget(&parent), QtPeer(picture, *this, form) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (mPixmap.isNull()) mPixmap.load(ResourcePath(mControl.Properties().PictureFile));
        QPainter(this).drawPixmap(rect(), mPixmap);
    }

private:
    QPixmap mPixmap;
};

} // namespace tessarin::qt
