#pragma once

#include <cstdint>

/// The numbers of the kernel's input protocol that a trackpad uses. They are part of its stable interface; they stand
/// here because recordings are read on other systems too.
namespace kinesta::evdev {

inline constexpr std::uint16_t kTypeSyn = 0x00;
inline constexpr std::uint16_t kTypeKey = 0x01;
inline constexpr std::uint16_t kTypeAbs = 0x03;

inline constexpr std::uint16_t kSynReport = 0;
inline constexpr std::uint16_t kSynMtReport = 2;
inline constexpr std::uint16_t kSynDropped = 3;

inline constexpr std::uint16_t kBtnLeft = 0x110;
inline constexpr std::uint16_t kBtnRight = 0x111;
inline constexpr std::uint16_t kBtnToolPen = 0x140;
inline constexpr std::uint16_t kBtnToolFinger = 0x145;
inline constexpr std::uint16_t kBtnToolQuintTap = 0x148;
inline constexpr std::uint16_t kBtnTouch = 0x14a;
inline constexpr std::uint16_t kBtnToolDoubleTap = 0x14d;
inline constexpr std::uint16_t kBtnToolTripleTap = 0x14e;
inline constexpr std::uint16_t kBtnToolQuadTap = 0x14f;

inline constexpr std::uint16_t kAbsX = 0x00;
inline constexpr std::uint16_t kAbsY = 0x01;
inline constexpr std::uint16_t kAbsPressure = 0x18;
inline constexpr std::uint16_t kAbsMtSlot = 0x2f;
inline constexpr std::uint16_t kAbsMtTouchMajor = 0x30;
inline constexpr std::uint16_t kAbsMtPositionX = 0x35;
inline constexpr std::uint16_t kAbsMtPositionY = 0x36;
inline constexpr std::uint16_t kAbsMtTrackingId = 0x39;

inline constexpr std::uint16_t kPropertyDirect = 0x01;

}  // namespace kinesta::evdev
