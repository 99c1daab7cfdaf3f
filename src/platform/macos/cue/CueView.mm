#include "platform/macos/cue/CueView.h"

#include "feedback/ActionCueSymbol.h"
#include "platform/macos/drawing/PictureImage.h"
#include "platform/macos/foundation/NsText.h"

namespace kinesta {
namespace {

constexpr double kSymbolSide = 20;
constexpr CGFloat kSymbolInset = 14;
constexpr CGFloat kLabelInset = 44;
constexpr CGFloat kLabelEnd = 16;
constexpr CGFloat kLabelSize = 14;

NSImage* symbolOf(ActionKind kind) {
    const Picture& picture = actionCueSymbol(kind);
    return imageOfPicture(picture, kSymbolSide / picture.height);
}

}  // namespace

CueView::CueView()
    : m_view([[NSView alloc] initWithFrame:CGRect{}]),
      m_symbol([NSImageView imageViewWithImage:symbolOf(ActionKind::unconfigured)]),
      m_label([NSTextField labelWithString:@""]) {
    m_label.font = [NSFont systemFontOfSize:kLabelSize weight:NSFontWeightSemibold];
    m_label.lineBreakMode = NSLineBreakByTruncatingTail;
    m_label.usesSingleLineMode = YES;  // a message may have line ends
    for (NSView* part in @[ m_symbol, m_label ]) {
        part.translatesAutoresizingMaskIntoConstraints = NO;
        [m_view addSubview:part];
    }
    [NSLayoutConstraint activateConstraints:@[
        [m_symbol.leadingAnchor constraintEqualToAnchor:m_view.leadingAnchor constant:kSymbolInset],
        [m_symbol.centerYAnchor constraintEqualToAnchor:m_view.centerYAnchor],
        [m_label.leadingAnchor constraintEqualToAnchor:m_view.leadingAnchor constant:kLabelInset],
        [m_label.trailingAnchor constraintEqualToAnchor:m_view.trailingAnchor constant:-kLabelEnd],
        [m_label.centerYAnchor constraintEqualToAnchor:m_view.centerYAnchor]
    ]];
}

void CueView::setContent(const ActionCueContent& content) {
    m_symbol.image = symbolOf(content.symbol);
    m_label.stringValue = nsText(content.label);
}

}  // namespace kinesta
