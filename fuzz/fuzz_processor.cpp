// Plays any stream of frames, clicks and settings through all recognizers. They must not crash, and every result must
// be a possible gesture.

#include <fuzzer/FuzzedDataProvider.h>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>

#include "recognition/TouchFrameProcessor.h"
#include "require.h"
#include "rules/GestureKind.h"

namespace {

using namespace kinesta;

/// Takes the fuzzer's bytes one by one, from the last; zeros after the first.
class Bytes : public FuzzedDataProvider {
  public:
    using FuzzedDataProvider::FuzzedDataProvider;

    std::uint8_t next() { return ConsumeIntegral<std::uint8_t>(); }

    /// Mostly on the pad, in steps of 1/200.
    double coordinate() {
        using Limits = std::numeric_limits<double>;
        constexpr std::array kOddities{
            Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), 1e308, -1e18, 5e-324};
        const std::uint8_t byte = next();
        return byte <= 200 ? byte / 200.0 : kOddities[byte % kOddities.size()];
    }

    /// The time after `time`: a little later or earlier, or any other.
    double timeAfter(double time) {
        const std::uint8_t byte = next();
        return byte < 240 ? time + (byte - 10) * 0.004 : coordinate();
    }
};

class Session {
  public:
    Session(const std::uint8_t* data, std::size_t size) : m_bytes(data, size) {}

    void run() {
        while (m_bytes.remaining_bytes() > 0)
            step(m_bytes.next());
    }

  private:
    void step(std::uint8_t choice) {
        m_time = m_bytes.timeAfter(m_time);
        switch (choice % 16) {
            case 0:
                return m_processor.beginPhysicalClick(m_time);
            case 1:
                return m_processor.registerPressureStage(static_cast<std::int8_t>(m_bytes.next()));
            case 2:
                return completeClick();
            case 3:
                return finalize();
            case 4:
                return m_processor.setMaximumTapInterval(m_bytes.coordinate());
            case 5:
                return m_processor.setCornerPalmRejection({m_bytes.next() % 4 != 0, m_bytes.coordinate()});
            case 6:
                return m_processor.reset();
            case 7:
                addCrowd();
                break;
            case 8:
                m_samples.truncate(m_samples.size() - (m_samples.empty() ? 0 : 1));
                break;
            case 9:
                m_samples.clear();
                break;
            case 10:
            case 11:
                m_samples.push_back({m_bytes.next() % 8, {m_bytes.coordinate(), m_bytes.coordinate()}});
                break;
            default:
                for (TouchSample& sample : m_samples)
                    sample.position.y += (m_bytes.next() - 128) / 1000.0;
                break;
        }
        sendFrame();
    }

    /// Adds up to 1,020 fingers, with ids that wrap around.
    void addCrowd() {
        const unsigned count = m_bytes.next() * 4U;
        for (unsigned i = 0; i < count && m_samples.size() < 1000; ++i)
            m_samples.push_back({static_cast<ContactId>(m_nextId++), {0.4 + i * 1e-4, 0.5}});
    }

    void sendFrame() {
        const FrameRecognition found = m_processor.process(m_samples, m_time, m_time);
        if (found.isEmpty())
            return;
        checkGeneration(found.generation);
        if (found.edgeSlide) {
            require(found.edgeSlide->fingers >= 2 && found.edgeSlide->fingers <= 5);
            require(found.edgeSlide->side != EdgeSlideSide::both && found.edgeSlide->steps != 0);
        }
        if (found.tipTapSequence) {
            require(tipTapGesture(found.tipTapSequence->taps, found.tipTapSequence->direction).has_value());
            m_tipTap = found.tipTapSequence;
        }
        if (found.tapSequence) {
            require(tapGesture(found.tapSequence->taps).has_value() && found.tapSequence->fingers >= 2);
            m_tap = found.tapSequence;
        }
    }

    void completeClick() {
        const auto click = m_processor.completePhysicalClick(m_time);
        if (!click)
            return;
        checkGeneration(click->generation);
        require(physicalClickGesture(click->sequence.clicks, click->sequence.pressure).has_value());
        require(click->sequence.fingers >= 2 && click->sequence.fingers <= 5);
        require(!m_processor.completePhysicalClick(m_time));
        m_click = click->sequence;
    }

    /// Every sequence is finalized once and only with its own generation.
    void finalize() {
        finalize(&TouchFrameProcessor::finalize, m_tap);
        finalize(&TouchFrameProcessor::finalizeTipTap, m_tipTap);
        finalize(&TouchFrameProcessor::finalizePhysicalClick, m_click);
    }

    template <typename Sequence>
    void finalize(std::optional<Sequence> (TouchFrameProcessor::*finalizer)(const Sequence&, std::uint64_t),
                  const std::optional<Sequence>& last) {
        const Sequence expected = last.value_or(Sequence{});
        require(!(m_processor.*finalizer)(expected, m_generation + 1));
        if (const auto given = (m_processor.*finalizer)(expected, m_generation))
            require(last && *given == expected && !(m_processor.*finalizer)(expected, m_generation));
    }

    void checkGeneration(std::uint64_t generation) {
        require(generation >= m_generation && m_processor.isCurrent(generation));
        m_generation = generation;
    }

    Bytes m_bytes;
    TouchFrameProcessor m_processor;
    TouchSamples m_samples;
    std::uint32_t m_nextId = 0x7FFFFF00;
    double m_time = 1;
    std::uint64_t m_generation = 0;
    std::optional<TapSequence> m_tap;
    std::optional<TipTapSequence> m_tipTap;
    std::optional<PhysicalClickSequence> m_click;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Session(data, size).run();
    return 0;
}
