#pragma once

#include <QString>

#include <stdexcept>

namespace TVX::CORE {

// Bad or unreadable input of a scan import. The message names the file and where it is wrong (the
// line of a text file, the page or byte position of a binary one).
class ImportError : public std::runtime_error
{
public:
    explicit ImportError(const QString& message) : std::runtime_error(message.toStdString()) {}

    QString message() const { return QString::fromStdString(what()); }
};

} // namespace TVX::CORE
