#pragma once

#include <QImage>
#include <QString>

/// What is different in two pictures of one size; empty if nothing that counts is.
///
/// Lines and surfaces, found in \a wanted as runs of one colour, have to be the same but for a hair. Texts
/// may come from another version of the rasterizer: each of their pixels has some room, and a small share of
/// them may be outside of it.
QString difference(const QImage &wanted, const QImage &found);

/// \a picture to keep: the colours of its texts are so coarse that it takes little room, and still within
/// what difference() allows.
QImage coarse(QImage picture);
