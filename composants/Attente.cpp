#include "composants/Attente.h"

#include "composants/LecteurDEcran.h"
#include "composants/Libelle.h"
#include "composants/Pile.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <exception>
#include <optional>

using namespace std::chrono_literals;

namespace Quillet {

namespace {

constexpr auto discretion = 400ms; // what takes less is not shown
constexpr int marge = 24;

// Keeps its parent's window from hand and keys from the start; says why, to a screen reader too, once it shows.
class Panneau : public QWidget
{
public:
    Panneau(QWidget *parent, const QString &texte)
        : QWidget(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    {
        LecteurDEcran::jouer(this, QAccessible::Dialog);
        setWindowTitle(QCoreApplication::applicationName());
        setWindowModality(Qt::WindowModal);
        setAttribute(Qt::WA_DontShowOnScreen);
        show();
        QTimer::singleShot(discretion, this, [this, texte] {
            hide();
            setAccessibleName(texte);
            Pile::colonne(this, {.marges = {marge, marge, marge, marge}}, {new Libelle(texte)});
            adjustSize();
            setAttribute(Qt::WA_DontShowOnScreen, false);
            show();
        });
    }

protected:
    void closeEvent(QCloseEvent *evenement) override { evenement->ignore(); }
};

bool attendre(std::optional<std::chrono::milliseconds> patience, QWidget *parent, const QString &texte,
              const std::function<void()> &travail)
{
    QEventLoop boucle;
    bool fini = false;
    QThread *fil = QThread::create(travail);
    QObject::connect(fil, &QThread::finished, &boucle, [&] {
        fini = true;
        boucle.quit();
    });
    if (patience)
        QTimer::singleShot(*patience, &boucle, &QEventLoop::quit);
    const Panneau panneau(parent, texte);
    fil->start();
    boucle.exec();
    if (fini || !patience) {
        fil->wait();
        delete fil;
        return true;
    }
    QObject::connect(fil, &QThread::finished, fil, &QObject::deleteLater);
    if (fil->isFinished())
        fil->deleteLater();
    return false;
}

} // namespace

void Attente::jusquAuBout(QWidget *parent, const QString &texte, const std::function<void()> &travail)
{
    std::exception_ptr echec;
    attendre({}, parent, texte, [&] {
        try {
            travail();
        } catch (...) {
            echec = std::current_exception();
        }
    });
    if (echec)
        std::rethrow_exception(echec);
}

bool Attente::auPlus(std::chrono::milliseconds patience, QWidget *parent, const QString &texte,
                     const std::function<void()> &travail)
{
    return attendre(patience, parent, texte, travail);
}

} // namespace Quillet
