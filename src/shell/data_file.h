// Reading a data file whole: only a regular file is opened (a folder, a
// FIFO or a device in its place reads as missing), and any failure to read
// it is a missing file, never an exception.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lf {

// The bytes of the file, or nothing with the reason in *why. A file larger
// than maxBytes is refused unread.
std::optional<std::vector<std::uint8_t>> ReadDataFile(const std::string& file, std::size_t maxBytes,
                                                      std::string* why = nullptr);

// Whether the path names a regular file (following links): a reader handed
// a FIFO or a device would wait for ever.
bool IsRegularFile(const std::string& file);

}  // namespace lf
