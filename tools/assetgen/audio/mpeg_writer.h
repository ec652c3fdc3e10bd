// Encodes RGB frames into an MPEG-1 video file (.mpg, an MPEG-1 system
// stream) with libavcodec's mpeg1video encoder, single-threaded and
// bit-exact so the same frames give the same bytes.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace assetgen {

class MpegWriter {
 public:
  MpegWriter(const std::string& file, int width, int height, int fps);
  ~MpegWriter();
  MpegWriter(const MpegWriter&) = delete;
  MpegWriter& operator=(const MpegWriter&) = delete;

  bool Ok() const;
  // One frame of Cairo's native 32-bit pixels (B, G, R, A in memory).
  bool Add(const std::uint8_t* bgra, int stride);
  // Flushes the encoder and writes the file's end; false if anything failed.
  bool Finish();

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace assetgen
