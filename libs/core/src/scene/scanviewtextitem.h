#pragma once

#include "scene/scanviewitem.h"

#include <QString>

namespace TVX::CORE {

// A text anchored at one direction. Hit within a small angle of its anchor.
class ScanViewTextItem final : public ScanViewItem
{
public:
    ScanViewTextItem(const QString& text = QString(), const Vector3d& position = Vector3d());

    bool hitTest(const Vector3d& direction) const override;

    QString text() const { return m_text; }
    void setText(const QString& text) { m_text = text; }
    Vector3d position() const;

private:
    QString m_text;
};

} // namespace TVX::CORE
