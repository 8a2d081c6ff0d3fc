#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <future>

class QDialog;
class QThread;
class QWidget;

namespace Quillet {

struct Contexte;

// How the sellers' data leave, come back and are kept: what the menu's commands do, and the copy that is made by itself
// once a day. It lives as long as the window.
class Echanges : public QObject
{
    Q_OBJECT

public:
    // The context outlives it.
    Echanges(const Contexte &contexte, QWidget *fenetre);
    ~Echanges() override;
    Q_DISABLE_COPY_MOVE(Echanges)

    void exporter();
    void importer();
    void revenirAUneCopie();

    // Keeps today's copy, aside, if there is something new to keep; again with each new day. Called once the window
    // stands.
    void garderChaqueJour();
    // Why the last copy of the day could not be kept; empty when it could.
    [[nodiscard]] const QString &echecDeLaCopie() const { return echec_; }

    // Unpacks an archive and shows it, to be taken by a button of that name. Says why when it cannot be. The sheet, or
    // null.
    static QDialog *montrer(const Contexte &contexte, const QString &archive, const QString &geste, QWidget *parent);

signals:
    // The copy of the day was looked after.
    void copieFaite();

private:
    void enregistrer(const QString &chemin);
    void garder();
    void attendreLaCopie();
    void sansCopie(const std::function<QDialog *()> &ouvrir);

    const Contexte &contexte_;
    QWidget *fenetre_;
    QThread *fil_ = nullptr;            // while a copy is being made
    std::shared_future<QString> copie_; // its failure, once it is made
    bool occupe_ = false;               // a sheet that may touch the copies is there, or on its way: none starts
    bool aFaire_ = false;               // one, afterwards
    QString echec_;
};

} // namespace Quillet
