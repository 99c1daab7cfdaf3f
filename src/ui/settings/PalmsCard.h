#pragma once

#include <QBoxLayout>

#include "ui/models/SettingsModel.h"
#include "ui/settings/MeasuredSlider.h"
#include "ui/settings/PalmPicture.h"
#include "ui/widgets/Card.h"
#include "ui/widgets/Switch.h"

namespace kinesta {

/// Whether touches that start in a corner are ignored, and how large a corner is.
class PalmsCard final : public Card {
    Q_OBJECT

  public:
    /// The model must outlive this.
    explicit PalmsCard(SettingsModel& model);

    void load(const SettingsContent& content);
    void settle() { m_size->settle(); }

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* makePanel();
    void place();

    Switch* m_palms;
    PalmPicture* m_picture;
    MeasuredSlider* m_size;
    QBoxLayout* m_columns = nullptr;
    QWidget* m_panel;
};

}  // namespace kinesta
