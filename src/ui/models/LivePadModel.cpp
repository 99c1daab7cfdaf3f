#include "ui/models/LivePadModel.h"

#include <algorithm>

namespace kinesta {

void LivePadModel::take(const PadEvent& event) {
    const auto* frame = std::get_if<PadFrame>(&event.content);
    if (frame == nullptr)
        return;
    const Uptime now = frame->received.value_or(event.time);
    std::erase_if(m_tracks, [&](const Track& track) { return track.liftedAt && opacity(*track.liftedAt, now) == 0; });
    const std::span<const TouchSample> present(frame->samples.begin(), frame->samples.end());
    lift(present, now);
    for (const TouchSample& sample : present) {
        const auto known = std::ranges::find_if(
            m_tracks, [&](const Track& track) { return track.id == sample.id && !track.liftedAt; });
        if (known == m_tracks.end())
            land(sample, now);
        else
            move(*known, sample, now);
    }
    const std::span<const TouchSample> fingers = m_palms.process(present);
    for (Track& track : m_tracks)
        if (!track.liftedAt)
            track.isPalm = std::ranges::find(fingers, track.id, &TouchSample::id) == fingers.end();
}

void LivePadModel::land(const TouchSample& sample, Uptime now) {
    const Step step{now, sample.position};
    m_tracks.push_back(
        {.number = ++m_lastNumber, .id = sample.id, .isPalm = false, .resting = step, .steps = {step}, .liftedAt = {}});
}

void LivePadModel::move(Track& track, const TouchSample& sample, Uptime now) {
    if (sample.position == track.steps.back().at)
        return;
    if (distance(sample.position, track.resting.at) > kRest.maximumAnchorMovement)
        track.resting = {now, sample.position};
    const auto seen = std::ranges::find_if(track.steps, [&](const Step& step) { return step.time >= now - kTrail; });
    track.steps.erase(track.steps.begin(), seen);
    track.steps.push_back({now, sample.position});
}

void LivePadModel::lift(std::span<const TouchSample> present, Uptime now) {
    for (Track& track : m_tracks)
        if (!track.liftedAt && std::ranges::find(present, track.id, &TouchSample::id) == present.end())
            track.liftedAt = now;
    std::erase_if(m_tracks, [](const Track& track) { return track.liftedAt && track.isPalm; });
}

void LivePadModel::tell(const DetectedGesture& gesture, const std::string& text, Uptime now) {
    m_reported = {gesture, text, now};
}

void LivePadModel::clear() {
    m_tracks.clear();
    m_palms.reset();
    m_reported.reset();
}

std::vector<LiveTouch> LivePadModel::touches(Uptime now) const {
    using Form = LiveTouch::Form;
    std::vector<LiveTouch> touches;
    for (const Track& track : m_tracks) {
        LiveTouch touch{.number = track.number, .id = track.id, .at = track.steps.back().at, .trail = {}};
        if (track.liftedAt) {
            touch.form = Form::lifted;
            touch.opacity = opacity(*track.liftedAt, now);
            if (touch.opacity == 0)
                continue;
        } else if (track.isPalm) {
            touch.form = Form::palm;
        } else if (now - track.resting.time >= kRest.minimumAnchorDuration) {
            touch.form = Form::still;
        }
        if (!track.isPalm)
            for (const Step& step : trail(track, now))
                touch.trail.push_back(step.at);
        touches.push_back(std::move(touch));
    }
    return touches;
}

std::optional<LiveGesture> LivePadModel::gesture(Uptime now) const {
    if (!m_reported || opacity(m_reported->time, now) == 0)
        return std::nullopt;
    return LiveGesture{m_reported->gesture, m_reported->text, opacity(m_reported->time, now)};
}

std::optional<Uptime> LivePadModel::nextChange(Uptime now) const {
    std::optional<Uptime> next;
    const auto consider = [&next](std::optional<Uptime> time) {
        if (time && (!next || *time < *next))
            next = time;
    };
    if (m_reported)
        consider(nextFade(m_reported->time, now));
    for (const Track& track : m_tracks) {
        if (track.liftedAt) {
            consider(nextFade(*track.liftedAt, now));
        } else if (!track.isPalm) {
            if (trail(track, now).size() > 1)
                consider(now);
            if (const Uptime still = track.resting.time + kRest.minimumAnchorDuration; still > now)
                consider(still);
        }
    }
    return next;
}

/// Of what is kept from `begin` on.
double LivePadModel::opacity(Uptime begin, Uptime now) const {
    const Seconds fading = now - begin - kKept;
    if (fading < 0)
        return 1;
    return fading < m_fading ? 1 - fading / m_fading : 0;
}

std::optional<Uptime> LivePadModel::nextFade(Uptime begin, Uptime now) const {
    if (opacity(begin, now) == 0)
        return std::nullopt;
    return std::max(begin + kKept, now);
}

std::span<const LivePadModel::Step> LivePadModel::trail(const Track& track, Uptime now) {
    const Uptime oldest = track.liftedAt.value_or(now) - kTrail;
    const auto first = std::ranges::find_if(track.steps, [&](const Step& step) { return step.time >= oldest; });
    return {first, track.steps.end()};
}

}  // namespace kinesta
