#pragma once

#include <string>

#include "app/SystemReport.h"

namespace kinesta {

/// The report as text, to be sent to others. Names, paths and addresses that are the person's own are left out, and the
/// text says so.
std::string reportText(const SystemReport::Result& result, const std::string& version);

}  // namespace kinesta
