#pragma once

#include "ui/pictures/PadScene.h"

namespace kinesta {

/// A gesture performed on a pad in the tempo of real fingers: twice, each time followed by the still picture. A click
/// of any pressure is soft at first and deep the second time. Times are in milliseconds.
class GesturePerformance {
  public:
    /// `tapWaitingInterval` in seconds sets the tempo of repeated taps.
    GesturePerformance(const PadGesture& gesture, double tapWaitingInterval);

    /// From then on the pad stands still.
    double duration() const { return m_cycles * cycle(); }
    PadScene at(double time) const;

  private:
    double cycle() const;
    PadScene performed(double time, bool isDeep) const;
    void tap(PadScene& scene, double time) const;
    void click(PadScene& scene, double time, bool isDeep) const;
    void tipTap(PadScene& scene, double time) const;
    void slide(PadScene& scene, double time) const;
    void draw(PadScene& scene, double time) const;
    void light(PadScene& scene, double sinceFirst, double each) const;
    double pressEnd(bool isDeep) const;
    double drawingTime() const;

    PadGesture m_gesture;
    double m_tapTime;
    int m_cycles = 2;
};

}  // namespace kinesta
