#pragma once

#include <QWidget>
#include <vector>

#include "ui/models/KeyCaps.h"

namespace kinesta {

/// The keys of a shortcut, drawn as keys. Never mirrored. Where signs and words have no room beside each other, the
/// words stand alone, then the signs.
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
    enum class Content { signsAndWords, words, signs };

    static int gap(Content content);
    QString textOf(const KeyCap& cap, Content content) const;
    int widthOf(const KeyCap& cap, Content content) const;
    int wholeWidth(Content content) const;
    Content fittingContent() const;

    std::vector<KeyCap> m_caps;
    Look m_look = Look::printed;
    End m_end = End::plain;
};

}  // namespace kinesta
