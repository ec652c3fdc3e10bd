#include "audio/mpeg_writer.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
#include <libswscale/swscale.h>
}

namespace assetgen {

struct MpegWriter::Impl {
  AVFormatContext* format = nullptr;
  AVCodecContext* codec = nullptr;
  AVStream* stream = nullptr;
  AVFrame* frame = nullptr;
  AVPacket* packet = nullptr;
  SwsContext* scaler = nullptr;
  std::int64_t next = 0;
  bool ok = false;
  bool headerWritten = false;
  bool finished = false;

  ~Impl() {
    if (headerWritten && !finished) av_write_trailer(format);
    sws_freeContext(scaler);
    av_packet_free(&packet);
    av_frame_free(&frame);
    avcodec_free_context(&codec);
    if (format && !(format->oformat->flags & AVFMT_NOFILE)) avio_closep(&format->pb);
    avformat_free_context(format);
  }

  bool Open(const std::string& file, int width, int height, int fps) {
    av_log_set_level(AV_LOG_ERROR);
    if (avformat_alloc_output_context2(&format, nullptr, "mpeg", file.c_str()) < 0 || !format) return false;
    format->flags |= AVFMT_FLAG_BITEXACT;
    const AVCodec* encoder = avcodec_find_encoder(AV_CODEC_ID_MPEG1VIDEO);
    if (!encoder) return false;
    stream = avformat_new_stream(format, nullptr);
    codec = avcodec_alloc_context3(encoder);
    if (!stream || !codec) return false;
    codec->width = width;
    codec->height = height;
    codec->time_base = AVRational{1, fps};
    codec->framerate = AVRational{fps, 1};
    codec->pix_fmt = AV_PIX_FMT_YUV420P;
    codec->gop_size = 12;
    codec->max_b_frames = 0;
    codec->thread_count = 1;
    codec->flags |= AV_CODEC_FLAG_BITEXACT | AV_CODEC_FLAG_QSCALE;
    codec->global_quality = FF_QP2LAMBDA * 5;
    // Fixed quantiser; the rate only sizes the multiplexer's stream.
    codec->bit_rate = 1500000;
    if (format->oformat->flags & AVFMT_GLOBALHEADER) codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    if (avcodec_open2(codec, encoder, nullptr) < 0) return false;
    if (avcodec_parameters_from_context(stream->codecpar, codec) < 0) return false;
    stream->time_base = codec->time_base;
    if (avio_open(&format->pb, file.c_str(), AVIO_FLAG_WRITE) < 0) return false;
    AVDictionary* options = nullptr;
    av_dict_set(&options, "fflags", "+bitexact", 0);
    av_dict_set(&options, "muxrate", "6000000", 0);  // room for the largest pictures
    const int written = avformat_write_header(format, &options);
    av_dict_free(&options);
    if (written < 0) return false;
    headerWritten = true;
    frame = av_frame_alloc();
    packet = av_packet_alloc();
    if (!frame || !packet) return false;
    frame->format = codec->pix_fmt;
    frame->width = width;
    frame->height = height;
    if (av_frame_get_buffer(frame, 0) < 0) return false;
    scaler = sws_getContext(width, height, AV_PIX_FMT_BGRA, width, height, AV_PIX_FMT_YUV420P,
                            SWS_BICUBIC | SWS_ACCURATE_RND | SWS_BITEXACT, nullptr, nullptr, nullptr);
    return scaler != nullptr;
  }

  bool Drain() {
    for (;;) {
      const int got = avcodec_receive_packet(codec, packet);
      if (got == AVERROR(EAGAIN) || got == AVERROR_EOF) return true;
      if (got < 0) return false;
      av_packet_rescale_ts(packet, codec->time_base, stream->time_base);
      packet->stream_index = stream->index;
      if (av_interleaved_write_frame(format, packet) < 0) return false;
    }
  }
};

MpegWriter::MpegWriter(const std::string& file, int width, int height, int fps) : impl_(std::make_unique<Impl>()) {
  impl_->ok = impl_->Open(file, width, height, fps);
}

MpegWriter::~MpegWriter() = default;

bool MpegWriter::Ok() const { return impl_->ok; }

bool MpegWriter::Add(const std::uint8_t* bgra, int stride) {
  Impl& w = *impl_;
  if (!w.ok || av_frame_make_writable(w.frame) < 0) return w.ok = false;
  const std::uint8_t* planes[1] = {bgra};
  const int strides[1] = {stride};
  sws_scale(w.scaler, planes, strides, 0, w.codec->height, w.frame->data, w.frame->linesize);
  w.frame->pts = w.next++;
  w.frame->quality = w.codec->global_quality;
  if (avcodec_send_frame(w.codec, w.frame) < 0) return w.ok = false;
  return w.ok = w.Drain();
}

bool MpegWriter::Finish() {
  Impl& w = *impl_;
  if (!w.ok) return false;
  if (avcodec_send_frame(w.codec, nullptr) < 0 || !w.Drain()) return w.ok = false;
  w.finished = true;
  return av_write_trailer(w.format) == 0;
}

}  // namespace assetgen
