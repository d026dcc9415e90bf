#pragma once

#include <QStringList>
#include <QWidget>

class QComboBox;
class QFileSystemModel;
class QModelIndex;
class QTreeView;

namespace varnok {

// A tree of the folders that exist, one of which is chosen; where the machine has drives, a list of them above it.
class Ordnerwahl : public QWidget {
    Q_OBJECT
public:
    // Object names of tree and list; the folder chosen at first.
    Ordnerwahl(const QString& Name, const QString& Laufwerksname, const QString& Pfad, const QStringList& Laufwerke,
               QWidget* parent);

    const QString& Pfad() const { return Pfad_; }
    // Chooses a folder as the user does.
    void waehle(const QString& Pfad);
    QTreeView* Baum() const { return Baum_; }

    // The drives of this machine; none where folders have one root.
    static QStringList Laufwerke();

protected:
    bool eventFilter(QObject* Objekt, QEvent* e) override;

Q_SIGNALS:
    void gewaehlt(const QString& Pfad);

private:
    void erstelle_Laufwerksliste(const QString& Name, const QStringList& Laufwerke);
    void nimm_an(const QModelIndex& Stelle);
    void zeige_Gewaehltes();
    void folge_dem_Lesen();

    QFileSystemModel* Ordner_;
    QComboBox* Laufwerk_ = nullptr;
    QTreeView* Baum_;
    QString Pfad_;
    bool folgt_ = true;  // the tree is still as it was opened
};

}  // namespace varnok
