#pragma once

#include "toolkit/Controls.h"

#include <QPixmap>
#include <QWidget>

namespace tessarin::qt {

/// Shows one of the program's pictures. Its file is read when it is first painted.
class QtPicture : public QWidget {
public:
    QtPicture(const Picture& picture, QWidget& parent) : QWidget(&parent), mPicture(picture) {}

    /// The picture has another file.
    void FileChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Picture& mPicture;
    QPixmap mPixmap;
};

} // namespace tessarin::qt
