#pragma once

#include <vector>

#include "app/Desktop.h"

namespace kinesta {

/// The numbers of the signals by which these requests arrive.
std::vector<int> signalNumbers(const std::vector<ProgramSignal>& requests);

/// The request behind a signal that signalNumbers() names.
ProgramSignal meaningOfSignal(int number);

}  // namespace kinesta
