// Decodes an MPEG clip picture by picture into 320x240 RGB, the size the
// game always shows its clips at.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lf {

class ClipDecoder {
 public:
  static constexpr int kWidth = 320;
  static constexpr int kHeight = 240;

  // Opens the file; Ok() tells whether it holds a video stream that decodes.
  explicit ClipDecoder(const std::string& file);
  ~ClipDecoder();
  ClipDecoder(const ClipDecoder&) = delete;
  ClipDecoder& operator=(const ClipDecoder&) = delete;

  bool Ok() const;
  // Fills rgb with the next picture (kWidth * kHeight * 3 bytes) and seconds
  // with its time from the start of the clip; false at the end.
  bool NextFrame(std::vector<std::uint8_t>& rgb, double& seconds);

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace lf
