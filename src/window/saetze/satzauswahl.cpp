#include "window/saetze/satzauswahl.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <algorithm>
#include <array>

#include "records/satztext.h"

namespace varnok {
namespace {

// What would choose another entry of a closed list.
constexpr std::array Wahltasten = {Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Left, Qt::Key_Right,
                                   Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};

// The letter or digit to search for; empty for any other key.
QString Suchtext(const QKeyEvent& e) {
    if (e.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return {};
    const QString Text = e.text();
    return Text.isEmpty() || !Text.front().isPrint() || Text.front().isSpace() ? QString() : Text;
}

}  // namespace

void Satzauswahl::keyPressEvent(QKeyEvent* e) {
    const QString Text = Suchtext(*e);
    const bool waehlt = std::find(Wahltasten.begin(), Wahltasten.end(), e->key()) != Wahltasten.end();
    if (Text.isEmpty() && !waehlt) {
        Auswahlliste::keyPressEvent(e);
        return;
    }
    showPopup();
    if (!Text.isEmpty()) view()->keyboardSearch(Text);
}

QString Satzgegenstand(Satzart Art) {
    static constexpr std::array<const char16_t*, 4> Namen = {u"simulation", u"pesticide", u"application pattern", u"scenario"};
    return QString::fromUtf16(Namen[Art]);
}

void sperre_Unwaehlbare(QComboBox& Liste, const std::vector<std::string>& Namen) {
    auto* Eintraege = qobject_cast<QStandardItemModel*>(Liste.model());
    for (int i = 0; i < Liste.count(); ++i) {
        Eintraege->item(i)->setEnabled(Einwand_gegen_Text(Namen[static_cast<std::size_t>(i)]).empty());
    }
}

}  // namespace varnok
