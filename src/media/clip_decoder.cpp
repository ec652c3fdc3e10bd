#include "media/clip_decoder.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/imgutils.h>
#include <libswscale/swscale.h>
}

#include "shell/paths.h"

namespace lf {

struct ClipDecoder::Impl {
  AVFormatContext* format = nullptr;
  AVCodecContext* codec = nullptr;
  SwsContext* scaler = nullptr;
  AVPacket* packet = nullptr;
  AVFrame* frame = nullptr;
  int stream = -1;
  double timeBase = 0;
  double frameStep = 1.0 / 25;
  double lastSeconds = -1;
  bool draining = false;
  bool ok = false;

  ~Impl() {
    sws_freeContext(scaler);
    av_frame_free(&frame);
    av_packet_free(&packet);
    avcodec_free_context(&codec);
    avformat_close_input(&format);
  }

  bool Open(const std::string& file) {
    av_log_set_level(Verbose() ? AV_LOG_WARNING : AV_LOG_QUIET);
    if (avformat_open_input(&format, file.c_str(), nullptr, nullptr) < 0) return false;
    if (avformat_find_stream_info(format, nullptr) < 0) return false;
    const AVCodec* decoder = nullptr;
    stream = av_find_best_stream(format, AVMEDIA_TYPE_VIDEO, -1, -1, &decoder, 0);
    if (stream < 0 || !decoder) return false;
    codec = avcodec_alloc_context3(decoder);
    if (!codec) return false;
    const AVStream* s = format->streams[stream];
    if (avcodec_parameters_to_context(codec, s->codecpar) < 0) return false;
    codec->thread_count = 1;
    if (avcodec_open2(codec, decoder, nullptr) < 0) return false;
    timeBase = av_q2d(s->time_base);
    const AVRational rate = av_guess_frame_rate(format, const_cast<AVStream*>(s), nullptr);
    if (rate.num > 0 && rate.den > 0) frameStep = av_q2d(av_inv_q(rate));
    packet = av_packet_alloc();
    frame = av_frame_alloc();
    return packet && frame;
  }

  // The next decoded picture in `frame`; false at the end of the stream.
  bool Receive() {
    for (;;) {
      const int got = avcodec_receive_frame(codec, frame);
      if (got == 0) return true;
      if (got != AVERROR(EAGAIN)) return false;  // the end, or a broken stream
      if (draining) return false;
      if (av_read_frame(format, packet) < 0) {
        draining = true;
        avcodec_send_packet(codec, nullptr);
        continue;
      }
      if (packet->stream_index == stream) avcodec_send_packet(codec, packet);  // a bad packet is dropped
      av_packet_unref(packet);
    }
  }

  bool Convert(std::vector<std::uint8_t>& rgb) {
    scaler = sws_getCachedContext(scaler, frame->width, frame->height, static_cast<AVPixelFormat>(frame->format),
                                  kWidth, kHeight, AV_PIX_FMT_RGB24, SWS_BILINEAR, nullptr, nullptr, nullptr);
    if (!scaler) return false;
    rgb.resize(static_cast<std::size_t>(kWidth) * kHeight * 3);
    std::uint8_t* planes[4] = {rgb.data(), nullptr, nullptr, nullptr};
    const int pitches[4] = {kWidth * 3, 0, 0, 0};
    return sws_scale(scaler, frame->data, frame->linesize, 0, frame->height, planes, pitches) == kHeight;
  }
};

ClipDecoder::ClipDecoder(const std::string& file) : impl_(std::make_unique<Impl>()) {
  impl_->ok = impl_->Open(file);
}

ClipDecoder::~ClipDecoder() = default;

bool ClipDecoder::Ok() const { return impl_->ok; }

bool ClipDecoder::NextFrame(std::vector<std::uint8_t>& rgb, double& seconds) {
  Impl& d = *impl_;
  if (!d.ok || !d.Receive()) return false;
  const std::int64_t pts = d.frame->best_effort_timestamp;
  const AVStream* s = d.format->streams[d.stream];
  const std::int64_t start = s->start_time == AV_NOPTS_VALUE ? 0 : s->start_time;
  seconds = pts == AV_NOPTS_VALUE ? d.lastSeconds + d.frameStep : (pts - start) * d.timeBase;
  if (seconds < d.lastSeconds) seconds = d.lastSeconds + d.frameStep;
  d.lastSeconds = seconds;
  return d.Convert(rgb);
}

}  // namespace lf
