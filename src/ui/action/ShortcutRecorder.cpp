#include "ui/action/ShortcutRecorder.h"

namespace kinesta {

ShortcutRecorder::ShortcutRecorder(Desktop& /*desktop*/, QWidget* parent) : QWidget(parent) {}

void ShortcutRecorder::setShortcut(std::optional<std::uint16_t> /*keyCode*/, ShortcutModifiers /*modifiers*/) {}

}  // namespace kinesta
