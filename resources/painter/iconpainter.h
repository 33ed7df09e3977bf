#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

// Draws the viewer's own images (icons, cursors, logo, splash, background tile) in one style.
// The build runs it once and compiles what it writes into the resource bundle.
class IconPainter final
{
public:
    // Resource paths (relative, as they appear after ":/") of every image this painter makes.
    static QStringList resourcePaths();

    // The image for one resource path; a null image for an unknown path.
    static QImage paint(const QString& resourcePath);
};
