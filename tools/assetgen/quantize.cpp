#include "quantize.h"

#include <algorithm>
#include <array>

namespace assetgen {
namespace {

struct Bin {
  uint32_t count = 0;
  uint64_t r = 0, g = 0, b = 0;
};

struct Box {
  std::vector<int> bins;  // 15-bit colour numbers
  uint64_t count = 0;
};

int Channel(int bin, int c) { return (bin >> (10 - 5 * c)) & 31; }

}  // namespace

Quantized Quantize(const Image& im) {
  std::vector<Bin> hist(32768);
  for (uint32_t p : im.pixels) {
    if (p == 0) continue;
    const uint32_t r = (p >> 16) & 255, g = (p >> 8) & 255, b = p & 255;
    Bin& bin = hist[((r >> 3) << 10) | ((g >> 3) << 5) | (b >> 3)];
    ++bin.count;
    bin.r += r;
    bin.g += g;
    bin.b += b;
  }
  std::vector<Box> boxes(1);
  for (int i = 0; i < 32768; ++i) {
    if (hist[size_t(i)].count) {
      boxes[0].bins.push_back(i);
      boxes[0].count += hist[size_t(i)].count;
    }
  }
  if (boxes[0].bins.empty()) boxes.clear();
  // Split the box of the widest spread (weighted by its pixels) at its median.
  while (boxes.size() < 255) {
    int best = -1, bestAxis = 0;
    uint64_t bestScore = 0;
    for (size_t k = 0; k < boxes.size(); ++k) {
      if (boxes[k].bins.size() < 2) continue;
      for (int c = 0; c < 3; ++c) {
        int lo = 31, hi = 0;
        for (int bin : boxes[k].bins) {
          lo = std::min(lo, Channel(bin, c));
          hi = std::max(hi, Channel(bin, c));
        }
        const uint64_t score = uint64_t(hi - lo) * uint64_t(hi - lo) * boxes[k].count + uint64_t(hi - lo);
        if (hi > lo && score > bestScore) {
          bestScore = score;
          best = int(k);
          bestAxis = c;
        }
      }
    }
    if (best < 0) break;
    Box& box = boxes[size_t(best)];
    std::sort(box.bins.begin(), box.bins.end(), [&](int a, int b) {
      const int ca = Channel(a, bestAxis), cb = Channel(b, bestAxis);
      return ca != cb ? ca < cb : a < b;
    });
    uint64_t acc = 0;
    size_t cut = 1;
    for (size_t i = 0; i + 1 < box.bins.size(); ++i) {
      acc += hist[size_t(box.bins[i])].count;
      cut = i + 1;
      if (acc * 2 >= box.count) break;
    }
    Box other;
    other.bins.assign(box.bins.begin() + long(cut), box.bins.end());
    box.bins.resize(cut);
    box.count = 0;
    for (int bin : box.bins) box.count += hist[size_t(bin)].count;
    for (int bin : other.bins) other.count += hist[size_t(bin)].count;
    boxes.push_back(std::move(other));
  }
  Quantized q;
  q.palette.push_back(0);
  std::vector<uint8_t> lut(32768, 0);
  for (const Box& box : boxes) {
    uint64_t n = 0, r = 0, g = 0, b = 0;
    for (int bin : box.bins) {
      n += hist[size_t(bin)].count;
      r += hist[size_t(bin)].r;
      g += hist[size_t(bin)].g;
      b += hist[size_t(bin)].b;
      lut[size_t(bin)] = uint8_t(q.palette.size());
    }
    q.palette.push_back(KeepOpaque(uint32_t(r / n), uint32_t(g / n), uint32_t(b / n)));
  }
  q.indices.resize(im.pixels.size());
  for (size_t i = 0; i < im.pixels.size(); ++i) {
    const uint32_t p = im.pixels[i];
    q.indices[i] = p == 0 ? 0 : lut[((p >> 19) & 31) << 10 | ((p >> 11) & 31) << 5 | ((p >> 3) & 31)];
  }
  return q;
}

}  // namespace assetgen
