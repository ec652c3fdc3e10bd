#include "bmp_writer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "quantize.h"

namespace assetgen {
namespace {

void Put16(std::string& s, uint32_t v) {
  s.push_back(char(v & 0xff));
  s.push_back(char((v >> 8) & 0xff));
}
void Put32(std::string& s, uint32_t v) {
  Put16(s, v & 0xffff);
  Put16(s, v >> 16);
}

std::string Header(int w, int h, int bits, uint32_t compression, uint32_t dataSize, uint32_t paletteSize) {
  std::string s;
  const uint32_t offset = 14 + 40 + paletteSize * 4;
  s += "BM";
  Put32(s, offset + dataSize);
  Put32(s, 0);
  Put32(s, offset);
  Put32(s, 40);
  Put32(s, uint32_t(w));
  Put32(s, uint32_t(h));  // bottom-up rows
  Put16(s, 1);
  Put16(s, uint32_t(bits));
  Put32(s, compression);
  Put32(s, dataSize);
  Put32(s, 2835);
  Put32(s, 2835);
  Put32(s, paletteSize);
  Put32(s, 0);
  return s;
}

std::string Encode24(const Image& im) {
  const int stride = (im.width * 3 + 3) & ~3;
  std::string data(size_t(stride) * im.height, '\0');
  for (int y = 0; y < im.height; ++y) {
    char* row = data.data() + size_t(im.height - 1 - y) * stride;
    const uint32_t* src = im.pixels.data() + size_t(y) * im.width;
    for (int x = 0; x < im.width; ++x) {
      row[3 * x] = char(src[x] & 0xff);
      row[3 * x + 1] = char((src[x] >> 8) & 0xff);
      row[3 * x + 2] = char((src[x] >> 16) & 0xff);
    }
  }
  return Header(im.width, im.height, 24, 0, uint32_t(data.size()), 0) + data;
}

std::string Raw8(const std::vector<uint8_t>& idx, int w, int h) {
  const int stride = (w + 3) & ~3;
  std::string data(size_t(stride) * h, '\0');
  for (int y = 0; y < h; ++y) {
    std::memcpy(data.data() + size_t(h - 1 - y) * stride, idx.data() + size_t(y) * w, size_t(w));
  }
  return data;
}

// Run-length coding of 8-bit rows: runs of one index, literal stretches of
// three or more in absolute mode, an end-of-line after each row.
std::string Rle8(const std::vector<uint8_t>& idx, int w, int h) {
  std::string out;
  for (int y = h - 1; y >= 0; --y) {
    const uint8_t* row = idx.data() + size_t(y) * w;
    int x = 0;
    while (x < w) {
      int run = 1;
      while (x + run < w && run < 255 && row[x + run] == row[x]) ++run;
      if (run >= 3 || x + run >= w) {
        out.push_back(char(run));
        out.push_back(char(row[x]));
        x += run;
        continue;
      }
      // literals until a run of three begins
      int n = 0;
      while (x + n < w && n < 255) {
        if (x + n + 2 < w && row[x + n] == row[x + n + 1] && row[x + n] == row[x + n + 2]) break;
        ++n;
      }
      if (n < 3) {
        for (int i = 0; i < n; ++i) {
          out.push_back(char(1));
          out.push_back(char(row[x + i]));
        }
      } else {
        out.push_back(char(0));
        out.push_back(char(n));
        out.append(reinterpret_cast<const char*>(row + x), size_t(n));
        if (n & 1) out.push_back(char(0));
      }
      x += n;
    }
    out.push_back(char(0));
    out.push_back(char(0));
  }
  out.push_back(char(0));
  out.push_back(char(1));
  return out;
}

std::string Encode8(const Image& im) {
  Quantized q = Quantize(im);
  std::string pal;
  for (int i = 0; i < 256; ++i) {
    const uint32_t c = i < int(q.palette.size()) ? q.palette[size_t(i)] : 0;
    pal.push_back(char(c & 0xff));
    pal.push_back(char((c >> 8) & 0xff));
    pal.push_back(char((c >> 16) & 0xff));
    pal.push_back(char(0));
  }
  std::string raw = Raw8(q.indices, im.width, im.height);
  // SDL reads coded rows byte by byte, several times slower than plain ones:
  // pictures up to a megabyte stay plain so that loads stay quick, and only
  // the large sheets are coded to keep the data set small.
  constexpr std::size_t kPlainUpTo = 1100000;
  if (raw.size() <= kPlainUpTo) return Header(im.width, im.height, 8, 0, uint32_t(raw.size()), 256) + pal + raw;
  std::string rle = Rle8(q.indices, im.width, im.height);
  if (rle.size() < raw.size()) return Header(im.width, im.height, 8, 1, uint32_t(rle.size()), 256) + pal + rle;
  return Header(im.width, im.height, 8, 0, uint32_t(raw.size()), 256) + pal + raw;
}

}  // namespace

bool WriteBmp(const std::string& path, const Image& image, bool allowPalette, std::string* error) {
  const std::string bytes = allowPalette ? Encode8(image) : Encode24(image);
  const std::string tmp = path + ".tmp";
  std::FILE* f = std::fopen(tmp.c_str(), "wb");
  if (!f) {
    *error = "cannot write " + tmp + ": " + std::strerror(errno);
    return false;
  }
  const bool ok = std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
  const bool closed = std::fclose(f) == 0;
  if (!ok || !closed) {
    *error = "cannot write " + tmp + ": " + std::strerror(errno);
    std::remove(tmp.c_str());
    return false;
  }
  if (std::rename(tmp.c_str(), path.c_str()) != 0) {
    *error = "cannot rename " + tmp + ": " + std::strerror(errno);
    std::remove(tmp.c_str());
    return false;
  }
  return true;
}

}  // namespace assetgen
