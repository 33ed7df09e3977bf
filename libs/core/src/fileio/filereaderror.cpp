#include "fileio/filereaderror.h"

namespace TVX::CORE {

FileReadError::FileReadError(const char* module, int line)
    : std::ios_base::failure(std::string("file read error ") + module + ", line " + std::to_string(line),
                             std::make_error_code(std::io_errc::stream)),
      m_message(std::string("file read error ") + module + ", line " + std::to_string(line))
{
}

const char* FileReadError::what() const noexcept
{
    return m_message.c_str();
}

} // namespace TVX::CORE
