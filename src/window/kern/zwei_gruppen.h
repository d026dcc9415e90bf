#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace varnok {

// Two groups side by side with a line between them; where the width would cut them, one below the other without the line.
// Added in this order: group, line, group.
class Zwei_Gruppen : public QLayout {
    Q_OBJECT
public:
    using QLayout::QLayout;
    ~Zwei_Gruppen() override;

    void addItem(QLayoutItem* Stueck) override;
    int count() const override { return static_cast<int>(Stuecke_.size()); }
    QLayoutItem* itemAt(int i) const override;
    QLayoutItem* takeAt(int i) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int Breite) const override;
    QSize sizeHint() const override { return {volle_Breite(), heightForWidth(volle_Breite())}; }
    // As wide as the wider group.
    QSize minimumSize() const override;
    void setGeometry(const QRect& Platz) override;

private:
    enum Teil { links = 0, Strich = 1, rechts = 2 };

    QSize Groesse(Teil t) const { return Stuecke_.at(static_cast<std::size_t>(t))->sizeHint(); }
    void setze(Teil t, const QRect& Platz) const { Stuecke_.at(static_cast<std::size_t>(t))->setGeometry(Platz); }
    int volle_Breite() const;

    std::vector<std::unique_ptr<QLayoutItem>> Stuecke_;
};

}  // namespace varnok
