#pragma once

#include <AppKit/AppKit.h>

#include "feedback/ActionCueContent.h"

namespace kinesta {

/// What stands in the cue: a symbol and one line of text. For Objective-C++ files only; main thread only.
class CueView {
  public:
    CueView();

    NSView* view() const { return m_view; }
    void setContent(const ActionCueContent& content);

  private:
    NSView* m_view;
    NSImageView* m_symbol;
    NSTextField* m_label;
};

}  // namespace kinesta
