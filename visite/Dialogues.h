#pragma once

#include <QString>

#include <functional>
#include <initializer_list>

class QDialog;
class QWidget;

// The sheets and dialogs that open over a window, and how a person answers those that hold the program up.
namespace Quillet::Dialogues {

// The one in front; null when there is none.
QDialog *devant();

using Reponse = std::function<void(QDialog *)>;
// Makes the gesture, then answers the dialogs that it opens, one after the other. False when it could not be made, when
// one did not come, or one too many.
bool fairePuisRepondre(const std::function<bool()> &geste, std::initializer_list<Reponse> reponses);
// The gesture is a click on the button.
bool cliquerPuisRepondre(QWidget *fenetre, const QString &bouton, std::initializer_list<Reponse> reponses);

// Answers.
Reponse renoncer();
Reponse enregistrerSous(const QString &chemin);

} // namespace Quillet::Dialogues
