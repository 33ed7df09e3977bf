#pragma once

#include <ios>
#include <string>

namespace TVX::CORE {

// The read error of the scan file and project file readers: a std::ios_base::failure whose
// message is exactly "file read error <module>, line <line>" (module as a source path without
// suffix, e.g. "libs/core/src/fileio/tvxfile") and whose error code is std::io_errc::stream.
// what() gives the message alone; the standard library would append the error code's text.
class FileReadError final : public std::ios_base::failure
{
public:
    FileReadError(const char* module, int line);
    const char* what() const noexcept override;

private:
    std::string m_message;
};

inline FileReadError fileReadError(const char* module, int line)
{
    return FileReadError(module, line);
}

} // namespace TVX::CORE
