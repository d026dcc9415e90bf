#include "window/programm/ordnerwahl.h"

#include <QDir>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QTreeView>
#include <QVBoxLayout>
#include <QtGui/QFileSystemModel>
#include <QtWidgets/QFileIconProvider>

#include "window/kern/bausteine.h"

namespace varnok {
namespace {

using namespace Qt::StringLiterals;

QFileIconProvider& Bilder() {
    static QFileIconProvider Quelle;
    return Quelle;
}

QFileSystemModel* erstelle_Modell(QObject* parent) {
    auto* m = new QFileSystemModel(parent);
    m->setIconProvider(&Bilder());
    m->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    m->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    m->setRootPath(QString());
    m->sort(0);
    return m;
}

}  // namespace

QStringList Ordnerwahl::Laufwerke() {
    QStringList Namen;
    for (const QFileInfo& l : QDir::drives()) Namen << l.absoluteFilePath();
    return Namen.size() > 1 ? Namen : QStringList();
}

Ordnerwahl::Ordnerwahl(const QString& Name, const QString& Laufwerksname, const QString& Pfad, const QStringList& Laufwerke,
                       QWidget* parent)
    : QWidget(parent), Ordner_(erstelle_Modell(this)), Baum_(new QTreeView(this)), Pfad_(Pfad) {
    Baum_->setObjectName(Name);
    Baum_->setModel(Ordner_);
    Baum_->setHeaderHidden(true);
    for (int Spalte = 1; Spalte < Ordner_->columnCount(); ++Spalte) Baum_->hideColumn(Spalte);
    Baum_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    Baum_->header()->setStretchLastSection(false);
    Baum_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Baum_->setUniformRowHeights(true);
    Baum_->setIndentation(Ziffern(*this, 2));
    Baum_->viewport()->installEventFilter(this);

    auto* Spalte = new QVBoxLayout(this);
    Spalte->setContentsMargins(0, 0, 0, 0);
    Spalte->setSpacing(6);
    if (!Laufwerke.isEmpty()) erstelle_Laufwerksliste(Laufwerksname, Laufwerke);
    Spalte->addWidget(Baum_, 1);

    Baum_->setCurrentIndex(Ordner_->index(Pfad));
    zeige_Gewaehltes();
    connect(Baum_->selectionModel(), &QItemSelectionModel::currentChanged, this, &Ordnerwahl::nimm_an);
    folge_dem_Lesen();
}

// Folders are read one after the other, and what is read pushes the others down: the chosen one is kept in sight until the
// user takes the tree in hand.
void Ordnerwahl::folge_dem_Lesen() {
    const auto folge = [this] {
        if (folgt_) zeige_Gewaehltes();
    };
    const auto lass_los = [this] { folgt_ = false; };
    connect(Ordner_, &QFileSystemModel::directoryLoaded, this, folge, Qt::QueuedConnection);
    connect(Ordner_, &QFileSystemModel::layoutChanged, this, folge, Qt::QueuedConnection);
    connect(Baum_->verticalScrollBar(), &QScrollBar::actionTriggered, this, lass_los);
    connect(Baum_, &QTreeView::expanded, this, lass_los);
    connect(Baum_, &QTreeView::collapsed, this, lass_los);
}

void Ordnerwahl::erstelle_Laufwerksliste(const QString& Name, const QStringList& Laufwerke) {
    auto* Liste = new Auswahlliste(Name, 6, this);
    Liste->setAccessibleName(u"Drive"_s);
    int gewaehltes = 0;
    for (int i = 0; i < Laufwerke.size(); ++i) {
        if (Pfad_.startsWith(Laufwerke.at(i))) gewaehltes = i;
    }
    Liste->zeige(Laufwerke, gewaehltes);
    Baum_->setRootIndex(Ordner_->index(Laufwerke.at(gewaehltes)));
    layout()->addWidget(Liste);
    Laufwerk_ = Liste;
    connect(Liste, &QComboBox::activated, this, [this, Laufwerke](int i) {
        const QString& Laufwerk = Laufwerke.at(i);
        Baum_->setRootIndex(Ordner_->index(Laufwerk));
        Baum_->setCurrentIndex({});
        Pfad_ = Laufwerk;
        Q_EMIT gewaehlt(Pfad_);
    });
}

// A row is as wide as the view at least.
bool Ordnerwahl::eventFilter(QObject* Objekt, QEvent* e) {
    if (e->type() == QEvent::Resize) Baum_->header()->setMinimumSectionSize(Baum_->viewport()->width());
    return QWidget::eventFilter(Objekt, e);
}

void Ordnerwahl::waehle(const QString& Pfad) { Baum_->setCurrentIndex(Ordner_->index(Pfad)); }

void Ordnerwahl::nimm_an(const QModelIndex& Stelle) {
    if (!Stelle.isValid()) return;
    Pfad_ = Ordner_->filePath(Stelle);
    folgt_ = false;
    Baum_->scrollTo(Stelle);
    Q_EMIT gewaehlt(Pfad_);
}

// Brought into view, with the folders around it as far to the left as they go.
void Ordnerwahl::zeige_Gewaehltes() {
    const QModelIndex Stelle = Baum_->currentIndex();
    const bool folgt = folgt_;
    Baum_->scrollTo(Stelle, QAbstractItemView::PositionAtCenter);
    folgt_ = folgt;
    QScrollBar& Schieber = *Baum_->horizontalScrollBar();
    Schieber.setValue(0);
    const int Breite = Baum_->viewport()->width();
    const int links = Baum_->visualRect(Stelle).left();
    if (links > Breite / 2) Schieber.setValue(links - Breite / 4);
}

}  // namespace varnok
