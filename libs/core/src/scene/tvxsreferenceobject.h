#pragma once

#include "scene/tvxsceneitem.h"

namespace TVX::CORE {

// Base of the reference objects of a scan file's reference information.
class TVXSReferenceObject : public TVXSceneItem
{
public:
    TVXSReferenceObject();
    TVXSReferenceObject(const TVXSReferenceObject& other);
    ~TVXSReferenceObject() override;

    quint32 category() const override; // 1
    std::shared_ptr<TVXSceneItem> clone() const override;
    virtual quint32 kind() const; // 0

    QString name() const;
    void setName(const QString& name);
    bool flag() const;
    void setFlag(bool flag);

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace TVX::CORE
