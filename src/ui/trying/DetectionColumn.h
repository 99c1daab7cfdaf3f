#pragma once

#include <QVBoxLayout>

#include "ui/models/TestSheetModel.h"
#include "ui/trying/MarkedWords.h"
#include "ui/widgets/PadPicture.h"

namespace kinesta {

/// What was detected and what it would do. Screen readers say each detection, and when recognition stops.
class DetectionColumn final : public QWidget {
    Q_OBJECT

  public:
    DetectionColumn();

    void setContent(const TestSheetContent& content);
    void measure();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QVBoxLayout* m_column;
    Words* m_caption;
    PadPicture* m_picture;
    Words* m_result;
    Words* m_hint;
    Words* m_problem;
    MarkedWords* m_repetition;
    MarkedWords* m_confirmation;
    QWidget* m_foot;
    QVBoxLayout* m_footColumn;
    MarkedWords* m_consequence;
};

}  // namespace kinesta
