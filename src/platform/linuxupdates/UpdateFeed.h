#pragma once

#include <QByteArray>
#include <vector>

#include "app/SoftwareRelease.h"
#include "support/Result.h"

namespace kinesta {

/// The releases of an update feed: XML with one <release> element for each in a <feed>. Leaves out what is incomplete,
/// unsigned or not on an https address; unknown attributes and elements are for later versions. The error says why the
/// whole text is no feed.
Result<std::vector<SoftwareRelease>> readUpdateFeed(const QByteArray& text);

}  // namespace kinesta
