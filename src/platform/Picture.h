// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

/// A loaded picture, upright, in its own pixels.
class Picture {
public:
    Picture() = default;
    explicit Picture(QImage image) : m_image(std::move(image)) {}

    bool IsNull() const { return m_image.isNull(); }
    int Width() const { return m_image.width(); }
    int Height() const { return m_image.height(); }
    const QImage& Image() const { return m_image; }

private:
    QImage m_image;
};

/// Loads a picture whatever its extension says: the content decides. A null picture and a sentence in
/// sError when it can't be read.
Picture LoadPicture(const QString& sPath, QString& sError);
