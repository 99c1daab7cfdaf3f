#pragma once

#include <QWidget>
#include <vector>

#include "ui/models/KeyCaps.h"

namespace kinesta {

/// The keys of a shortcut, drawn as keys. Never mirrored; without room for the words the signs stand alone.
class KeyCapRow final : public QWidget {
    Q_OBJECT

  public:
    enum class Look { printed, held };
    enum class End { plain, emptySlot };

    explicit KeyCapRow(QWidget* parent = nullptr);

    void setCaps(std::vector<KeyCap> caps, Look look, End end);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    enum class Words { shown, dropped };

    QString textOf(const KeyCap& cap, Words words) const;
    int widthOf(const QString& text) const;
    int wholeWidth(Words words) const;

    std::vector<KeyCap> m_caps;
    Look m_look = Look::printed;
    End m_end = End::plain;
};

}  // namespace kinesta
