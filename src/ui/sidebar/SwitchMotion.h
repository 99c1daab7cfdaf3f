#pragma once

#include <QObject>
#include <QVariantAnimation>
#include <set>

#include "rules/Uuid.h"

namespace kinesta {

/// The switches of the list whose knobs are on their way.
class SwitchMotion final : public QObject {
    Q_OBJECT

  public:
    explicit SwitchMotion(QObject* parent = nullptr);

    /// The knobs of these rules move to the end of `isOn`; all others stand still at once.
    void start(std::set<Uuid> rules, bool isOn);
    /// 0 off, 1 on.
    double position(const Uuid& rule, bool isOn) const;

  Q_SIGNALS:
    void moved();

  private:
    std::set<Uuid> m_rules;
    QVariantAnimation m_motion;
};

}  // namespace kinesta
