#include "ui/sidebar/SwitchMotion.h"

#include <utility>

#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr int kMotion = 120;

}  // namespace

SwitchMotion::SwitchMotion(QObject* parent) : QObject(parent) {
    m_motion.setDuration(kMotion);
    m_motion.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_motion, &QVariantAnimation::valueChanged, this, &SwitchMotion::moved);
    connect(&m_motion, &QVariantAnimation::finished, this, [this] { m_rules.clear(); });
}

void SwitchMotion::start(std::set<Uuid> rules, bool isOn) {
    m_motion.stop();
    m_rules.clear();
    if (!WindowTheme::reducesMotion()) {
        m_rules = std::move(rules);
        m_motion.setStartValue(isOn ? 0.0 : 1.0);
        m_motion.setEndValue(isOn ? 1.0 : 0.0);
        m_motion.start();
    }
    Q_EMIT moved();
}

double SwitchMotion::position(const Uuid& rule, bool isOn) const {
    return m_rules.contains(rule) ? m_motion.currentValue().toDouble() : isOn ? 1 : 0;
}

}  // namespace kinesta
