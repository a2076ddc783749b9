// SPDX-License-Identifier: MIT
// As waitcursor.h for targets that link what the library itself does not: Qt's Widgets.
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QString>

// Shows a picture of the resources, image/NAME.png, in a label, with its size in pixels for a
// screen of 96 dots an inch and larger on a denser one, where image/NAME@2x.png is scaled down to
// that.
inline void showPicture(QLabel &label, const QString &name)
{
    constexpr int PICTURE_DPI = 96;
    const QPixmap picture(QStringLiteral(":/image/%1.png").arg(name));
    const bool isDense = label.devicePixelRatioF() * label.logicalDpiY() > PICTURE_DPI;
    label.setScaledContents(true);
    label.setFixedSize(picture.size() * label.logicalDpiY() / PICTURE_DPI);
    label.setPixmap(isDense ? QPixmap(QStringLiteral(":/image/%1@2x.png").arg(name)) : picture);
}
