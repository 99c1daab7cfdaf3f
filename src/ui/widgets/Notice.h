#pragma once

#include <QBoxLayout>
#include <QWidget>

#include "app/AppTheme.h"
#include "ui/widgets/Words.h"

namespace kinesta {

/// A sentence about something wrong or worth knowing, at the end of a card. Screen readers say it when it appears.
class Notice final : public QWidget {
    Q_OBJECT

  public:
    enum class Kind { plain, caution, error };

    Notice(Kind kind, const QString& title, const QString& detail, QWidget* parent = nullptr);

    void setWords(const QString& title, const QString& detail);
    /// A button or link at the end.
    void setControl(QWidget* control);
    QColor ground(const AppTheme& theme) const;

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void measure();

    Kind m_kind;
    Words* m_title;
    Words* m_detail;
    QBoxLayout* m_line;
};

}  // namespace kinesta
