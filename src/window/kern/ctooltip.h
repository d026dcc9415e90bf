#pragma once

#include <QColor>
#include <QHash>
#include <QMargins>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QtGui/QHelpEvent>

class QWidget;

namespace varnok {

// The tips of a form: one tool for each control, all in one look. The desktop makes the window of a tip for each showing and
// takes it away again, so there is no window handle to give out. A control without a tip shows none, not that of its frame.
class cTooltip : public QObject {
    Q_OBJECT
public:
    // The times that `DelayTime` means.
    enum Dauer { automatisch = 0, Wechsel = 1, Anzeige = 2, Beginn = 3 };
    enum Rand { links = 0, oben = 1, rechts = 2, unten = 3 };

    explicit cTooltip(QObject* parent);
    // Takes the tips of all tools away.
    ~cTooltip() override;

    // The form whose controls get tools, once. True if there is one.
    bool Create(QWidget& Formular);

    // False, and nothing is changed, for a control that has a tool already or is outside the form. A label is no control and gets
    // no tool; it shows no tip of its frame either.
    bool AddTool(QWidget& Teil, const QString& Text = {});
    bool RemoveTool(QWidget& Teil);
    int ToolCount() const { return static_cast<int>(Texte_.size()); }
    // The text of a tool, its lines separated by '\n'; empty without one. Setting gives false without one.
    QString ToolText(QWidget& Teil) const;
    bool ToolText(QWidget& Teil, const QString& Text);

    // Colours are the same for all tips of the program.
    QColor BackColor() const;
    void BackColor(const QColor& Farbe);
    QColor ForeColor() const;
    void ForeColor(const QColor& Farbe);

    // Milliseconds; of the kind the last two bits count. Only `Anzeige`, how long a tip stays, can be set: when it comes is a
    // matter of the desktop. False for the others.
    int DelayTime(int Art) const;
    bool DelayTime(int Art, int Millisekunden);
    // Room around the text, in pixels.
    int Margin(Rand Seite) const;
    void Margin(Rand Seite, int Pixel);
    // Lines are broken to stay within so many pixels; -1 for no limit.
    int MaxTipWidth() const { return MaxTipWidth_; }
    void MaxTipWidth(int Pixel);

    // For a control that reads the mouse itself: its tip shows once a visit and goes with the next move.
    void weiche_der_Maus(QWidget& Teil);

protected:
    bool eventFilter(QObject* Objekt, QEvent* e) override;

private:
    bool behandle(QWidget& Teil, const QHelpEvent& e);
    void setze(QWidget& Teil, const QString& Text) const;
    void setze_alle();
    void vergiss(QObject* Teil);

    QPointer<QWidget> Formular_;
    QHash<QObject*, QString> Texte_;
    QHash<QObject*, bool> weichend_;  // true: its tip was shown on this visit
    int MaxTipWidth_ = -1;
    int Anzeigedauer_ = -1;
    QMargins Rand_;
};

}  // namespace varnok
