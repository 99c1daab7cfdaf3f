#pragma once

#include <QString>
#include <string>

namespace kinesta {

enum class Lines { one, many };

/// Text from outside, of the same length: control characters, and in one line its ends, become blanks; halves of
/// characters become U+FFFD, and in many lines so does what would show them in another order.
QString cleanText(QString text, Lines lines);

/// The beginning of a stored text, for a label: one of megabytes would take minutes to lay out.
QString shownText(const std::string& stored);

}  // namespace kinesta
