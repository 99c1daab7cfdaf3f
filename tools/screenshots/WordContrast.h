#pragma once

#include <QString>
#include <QWidget>
#include <vector>

namespace kinesta {

/// Words that are hard to read, by the pixels of a window.
struct PaleWords {
    QString words;
    double contrast = 0;
};

/// Those of enabled labels, buttons and fields below 4.5. Only to be believed where strokes are wider than a pixel.
std::vector<PaleWords> paleWordsIn(QWidget& window);

}  // namespace kinesta
