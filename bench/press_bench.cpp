// How fast the presses' bytes are decoded: reports of both forms, and frames of the wired pads' line.
#include <benchmark/benchmark.h>

#include "devices/frame_splitter.h"
#include "devices/transceiver.h"
#include "devices/transceiver_data.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;

void Decode(benchmark::State& state, const ReportBuffer& buffer, int remote) {
  for (auto _ : state) {
    TransceiverData data;
    data.Parse(buffer);
    benchmark::DoNotOptimize(data);
    if (data.Remote != remote) state.SkipWithError("decoded to another remote");
  }
}

void DecodeLong(benchmark::State& state) {
  const std::string report = BuildPacket("\x0C\5\0\0"s, 0);
  ReportBuffer buffer(34);
  std::copy(report.begin(), report.end(), buffer.begin());
  Decode(state, buffer, 12);
}

void DecodeShort(benchmark::State& state) { Decode(state, {0, 1, 240, 0}, 69); }

// A read of 512 frames; the time is a frame's.
void SplitFrames(benchmark::State& state) {
  constexpr std::size_t kFrames = 512;
  std::string bytes;
  for (std::size_t i = 0; i < kFrames; ++i) bytes += "MF\0\4\xFD\0\0\x65"s;
  FrameSplitter splitter;
  std::size_t left = 0;
  for (auto _ : state) {
    if (left == 0) {
      splitter.Add(bytes);
      left = kFrames;
    }
    const auto frame = splitter.Next(0);
    if (!frame) state.SkipWithError("a frame is missing");
    benchmark::DoNotOptimize(frame);
    --left;
  }
}

BENCHMARK(DecodeLong);
BENCHMARK(DecodeShort);
BENCHMARK(SplitFrames);

}  // namespace
}  // namespace pawnfield
