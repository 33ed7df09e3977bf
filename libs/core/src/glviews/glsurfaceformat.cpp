#include "glviews/glsurfaceformat.h"

#include <QSurfaceFormat>

namespace TVX::CORE {

void installCompatibilityGLFormat()
{
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    format.setVersion(2, 1);
    format.setDepthBufferSize(24);
    QSurfaceFormat::setDefaultFormat(format);
}

} // namespace TVX::CORE
