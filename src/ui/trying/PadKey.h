#pragma once

#include <QBoxLayout>

#include "ui/trying/MarkedWords.h"

namespace kinesta {

/// What the fields on the live pad mean: side by side, or in a column if they do not fit.
class PadKey final : public QWidget {
    Q_OBJECT

  public:
    PadKey();

    void setPalmsShown(bool areShown);
    void setRoom(int width);

  private:
    void arrange();

    QBoxLayout* m_line;
    MarkedWords* m_bands;
    MarkedWords* m_corners;
    MarkedWords* m_palms;
    int m_room = 0;
};

}  // namespace kinesta
