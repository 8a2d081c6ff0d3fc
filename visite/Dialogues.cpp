#include "visite/Dialogues.h"

#include "visite/Ecran.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTimer>

#include <cstdio>

namespace Quillet {

QDialog *Dialogues::devant()
{
    return qobject_cast<QDialog *>(QApplication::activeModalWidget());
}

bool Dialogues::fairePuisRepondre(const std::function<bool()> &geste, std::initializer_list<Reponse> reponses)
{
    const auto *suivante = reponses.begin();
    const QDialog *connu = devant();
    bool inattendu = false;
    QTimer guet; // runs in the dialogs' own event loops
    QObject::connect(&guet, &QTimer::timeout, &guet, [&] {
        QDialog *dialogue = devant();
        if (!dialogue || dialogue == connu)
            return;
        connu = dialogue;
        if (suivante == reponses.end()) {
            inattendu = true;
            dialogue->reject();
        } else {
            (*suivante++)(dialogue);
        }
    });
    guet.start(10);
    if (!geste())
        return false;
    if (suivante == reponses.end() && !inattendu)
        return true;
    std::fprintf(stderr, "%s\n", inattendu ? "Un dialogue de trop" : "Il manque un dialogue");
    return false;
}

bool Dialogues::cliquerPuisRepondre(QWidget *fenetre, const QString &bouton, std::initializer_list<Reponse> reponses)
{
    return fairePuisRepondre([&] { return Ecran::cliquer(fenetre, bouton); }, reponses);
}

Dialogues::Reponse Dialogues::renoncer()
{
    return [](QDialog *dialogue) { dialogue->reject(); };
}

Dialogues::Reponse Dialogues::enregistrerSous(const QString &chemin)
{
    return [chemin](QDialog *dialogue) {
        dialogue->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(chemin);
        QMetaObject::invokeMethod(dialogue, "accept");
    };
}

} // namespace Quillet
