#pragma once

#include <QString>

#include <functional>

class QFileDialog;
class QObject;
class QWidget;

// What comes from a file the user names, or goes to one.
namespace Quillet {

class Preferences;

namespace DialoguesDeFichier {

// Opens in the folder that is kept by this key, or else among the documents.
QFileDialog *choix(const QString &titre, const QString &filtre, const Preferences &preferences, const QString &cle,
                   QWidget *parent);
// Shows it; what is done with the file waits until it has closed: a wait within it could see it closed, and deleted, by
// somebody else.
void ouvrir(QFileDialog *dialogue, QObject *contexte, const std::function<void(const QString &chemin)> &faire);
void prevenir(const QString &titre, const QString &texte, QWidget *parent);

} // namespace DialoguesDeFichier

} // namespace Quillet
