#include "ui/commun/ChampEntier.h"

#include "model/Format.h"

#include <QEvent>
#include <QToolTip>
#include <QValidator>

#include <algorithm>

namespace {

QString sansEspaces(QString texte)
{
    texte.removeIf([](QChar c) { return c.isSpace(); });
    return texte;
}

QString ecrit(std::optional<qint64> valeur)
{
    return valeur ? Format::grammes(Grammes{*valeur}) : QString();
}

class EntierBorne : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &saisie, int &) const override
    {
        const QString texte = sansEspaces(saisie);
        if (texte.isEmpty())
            return Acceptable;
        const bool queDesChiffres = std::ranges::all_of(texte, [](QChar c) { return c >= u'0' && c <= u'9'; });
        bool tient = false;
        return queDesChiffres && texte.toLongLong(&tient) <= ChampEntier::maximum && tient ? Acceptable : Invalid;
    }
};

} // namespace

ChampEntier::ChampEntier(const QString &unite, QWidget *parent) : QLineEdit(parent)
{
    setValidator(new EntierBorne(this));
    setAlignment(Qt::AlignRight);
    ajusterLaLargeur();
    connect(this, &QLineEdit::textEdited, this, [this] {
        QToolTip::hideText();
        emit saisie(valeur());
    });
    connect(this, &QLineEdit::inputRejected, this, [this, unite] {
        QToolTip::showText(mapToGlobal(QPoint(0, height())),
                           tr("Un nombre entier de %1, de 0 à %2.").arg(unite, ecrit(maximum)), this);
    });
}

std::optional<qint64> ChampEntier::valeur() const
{
    const QString texte = sansEspaces(text());
    return texte.isEmpty() ? std::nullopt : std::optional(texte.toLongLong());
}

void ChampEntier::montrer(std::optional<qint64> montree)
{
    montree_ = montree;
    // An emptied field means 0 to some: it stays empty under the typist's hands.
    const bool enCours = hasFocus() && montree.value_or(0) == valeur().value_or(0);
    if (!enCours)
        setText(ecrit(montree));
}

// At least 70 px, and always wide enough for the largest number: a cut one would be misread.
void ChampEntier::changeEvent(QEvent *evenement)
{
    QLineEdit::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange)
        ajusterLaLargeur();
}

void ChampEntier::ajusterLaLargeur()
{
    setFixedWidth(std::max(70, fontMetrics().horizontalAdvance(ecrit(maximum)) + 24));
}

void ChampEntier::focusOutEvent(QFocusEvent *evenement)
{
    QLineEdit::focusOutEvent(evenement);
    setText(ecrit(montree_));
}
