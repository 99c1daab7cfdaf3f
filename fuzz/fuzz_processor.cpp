// Turns bytes into frames, clicks and settings for all recognizers. Nothing may crash, and every result must be a
// possible gesture.

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

struct Bytes : FuzzedDataProvider {
    using FuzzedDataProvider::FuzzedDataProvider;

    /// The next byte, or 0 after the last.
    std::uint8_t next() { return ConsumeIntegral<std::uint8_t>(); }

    /// Mostly on the pad, in steps of 1/200; sometimes infinite, huge, tiny or not a number.
    double coordinate() {
        using Limits = std::numeric_limits<double>;
        constexpr std::array kOddities{
            Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), 1e308, -1e18, 5e-324};
        const std::uint8_t byte = next();
        return byte <= 200 ? byte / 200.0 : kOddities[byte % kOddities.size()];
    }

    /// A time a little before or after `time`, or any other.
    double timeAfter(double time) {
        const std::uint8_t byte = next();
        return byte < 240 ? time + (byte - 10) * 0.004 : coordinate();
    }
};

struct Session : Bytes {
    using Bytes::Bytes;

    void step(std::uint8_t choice) {
        m_time = timeAfter(m_time);
        switch (choice % 16) {
            case 0:
                return m_processor.beginPhysicalClick(m_time);
            case 1:
                return m_processor.registerPressureStage(static_cast<std::int8_t>(next()));
            case 2:
                return completeClick();
            case 3:
                return finalize();
            case 4:
                return m_processor.setMaximumTapInterval(coordinate());
            case 5:
                return m_processor.setCornerPalmRejection({next() % 4 != 0, coordinate()});
            case 6:
                return m_processor.reset();
            case 7:
                addCrowd();
                break;
            case 8:
            case 9:
                m_samples.truncate(choice % 16 == 9 || m_samples.empty() ? 0 : m_samples.size() - 1);
                break;
            case 10:
            case 11:
                m_samples.push_back({next() % 8, {coordinate(), coordinate()}});
                break;
            default:
                for (TouchSample& sample : m_samples)
                    sample.position.y += (next() - 128) / 1000.0;
                break;
        }
        sendFrame();
    }

    /// Adds up to 1,020 fingers, with ids that wrap around.
    void addCrowd() {
        const unsigned count = next() * 4U;
        for (unsigned i = 0; i < count && m_samples.size() < 1000; ++i)
            m_samples.push_back({static_cast<ContactId>(m_nextId++), {0.4 + i * 1e-4, 0.5}});
    }

    void sendFrame() {
        const FrameRecognition found = m_processor.process(m_samples, m_time, m_time);
        if (found.isEmpty())
            return;
        checkGeneration(found.generation);
        if (const auto& slide = found.edgeSlide)
            require(slide->fingers >= 2 && slide->fingers <= 5 && slide->side != EdgeSlideSide::both &&
                    slide->steps != 0);
        if (found.tipTapSequence)
            m_tipTap = found.tipTapSequence;
        require(!m_tipTap || tipTapGesture(m_tipTap->taps, m_tipTap->direction));
        if (found.tapSequence)
            m_tap = found.tapSequence;
        require(!m_tap || (tapGesture(m_tap->taps) && m_tap->fingers >= 2));
    }

    void completeClick() {
        const auto click = m_processor.completePhysicalClick(m_time);
        if (!click)
            return;
        checkGeneration(click->generation);
        m_click = click->sequence;
        require(physicalClickGesture(m_click->clicks, m_click->pressure) && m_click->fingers >= 2 &&
                m_click->fingers <= 5);
        require(!m_processor.completePhysicalClick(m_time));
    }

    /// Checks that the processor gives a sequence once, and only for its own generation.
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
    Session session(data, size);
    while (session.remaining_bytes() > 0)
        session.step(session.next());
    return 0;
}
