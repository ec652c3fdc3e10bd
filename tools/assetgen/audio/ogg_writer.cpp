#include "audio/ogg_writer.h"

#include <vorbis/vorbisenc.h>

#include <cstdio>
#include <memory>

namespace assetgen {
namespace {

struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};

bool WritePage(std::FILE* f, const ogg_page& page) {
  return std::fwrite(page.header, 1, static_cast<std::size_t>(page.header_len), f) ==
             static_cast<std::size_t>(page.header_len) &&
         std::fwrite(page.body, 1, static_cast<std::size_t>(page.body_len), f) == static_cast<std::size_t>(page.body_len);
}

}  // namespace

bool WriteOgg(const std::string& file, const Samples& left, const Samples& right, int rate, float quality,
              const std::string& title) {
  std::unique_ptr<std::FILE, FileCloser> f(std::fopen(file.c_str(), "wb"));
  if (!f) return false;

  vorbis_info vi;
  vorbis_info_init(&vi);
  if (vorbis_encode_init_vbr(&vi, 2, rate, quality) != 0) {
    vorbis_info_clear(&vi);
    return false;
  }
  vorbis_comment vc;
  vorbis_comment_init(&vc);
  vorbis_comment_add_tag(&vc, "TITLE", title.c_str());
  vorbis_comment_add_tag(&vc, "ARTIST", "Lanefarer asset generator");
  vorbis_dsp_state vd;
  vorbis_block vb;
  vorbis_analysis_init(&vd, &vi);
  vorbis_block_init(&vd, &vb);
  ogg_stream_state os;
  ogg_stream_init(&os, 0x4C414E45);  // a fixed serial number: the same bytes every run

  bool ok = true;
  ogg_packet header, comments, codebooks;
  vorbis_analysis_headerout(&vd, &vc, &header, &comments, &codebooks);
  ogg_stream_packetin(&os, &header);
  ogg_stream_packetin(&os, &comments);
  ogg_stream_packetin(&os, &codebooks);
  ogg_page page;
  while (ogg_stream_flush(&os, &page) != 0) ok = ok && WritePage(f.get(), page);

  constexpr std::size_t kBlock = 4096;
  std::size_t at = 0;
  bool done = false;
  while (!done) {
    const std::size_t n = std::min(kBlock, left.size() - at);
    if (n == 0) {
      vorbis_analysis_wrote(&vd, 0);
    } else {
      float** buffer = vorbis_analysis_buffer(&vd, static_cast<int>(n));
      for (std::size_t i = 0; i < n; ++i) {
        buffer[0][i] = left[at + i];
        buffer[1][i] = right[at + i];
      }
      vorbis_analysis_wrote(&vd, static_cast<int>(n));
      at += n;
    }
    while (vorbis_analysis_blockout(&vd, &vb) == 1) {
      vorbis_analysis(&vb, nullptr);
      vorbis_bitrate_addblock(&vb);
      ogg_packet packet;
      while (vorbis_bitrate_flushpacket(&vd, &packet) != 0) {
        ogg_stream_packetin(&os, &packet);
        while (ogg_stream_pageout(&os, &page) != 0) {
          ok = ok && WritePage(f.get(), page);
          if (ogg_page_eos(&page)) done = true;
        }
      }
    }
    if (n == 0) done = true;
  }
  while (ogg_stream_flush(&os, &page) != 0) ok = ok && WritePage(f.get(), page);

  ogg_stream_clear(&os);
  vorbis_block_clear(&vb);
  vorbis_dsp_clear(&vd);
  vorbis_comment_clear(&vc);
  vorbis_info_clear(&vi);
  return ok;
}

}  // namespace assetgen
