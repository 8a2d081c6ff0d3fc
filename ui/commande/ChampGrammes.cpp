#include "ui/commande/ChampGrammes.h"

#include "model/Saisie.h"

#include <QFocusEvent>
#include <QToolTip>
#include <QValidator>

#include <algorithm>
#include <utility>

namespace Quillet {

namespace {

constexpr Grammes maximum{UniteGramme::maximum};

// Keys that cannot become a weight have no effect.
class DesGrammes : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &saisie, int &) const override
    {
        return std::holds_alternative<Saisie::Refus>(Saisie::poids(saisie)) ? Invalid : Acceptable;
    }
};

} // namespace

ChampGrammes::ChampGrammes(QWidget *parent) : LigneDeTexte(parent)
{
    setValidator(new DesGrammes(this));
    setAlignment(Qt::AlignRight);
    ajusterLaLargeur();
    // Not textEdited: dictation writes without typing.
    connect(this, &QLineEdit::textChanged, this, [this] {
        accepter();
        if (poids() != montre_)
            emit saisi(poids());
    });
    connect(this, &QLineEdit::inputRejected, this, &ChampGrammes::refuser);
}

// Dictation writes past the validator, too: what is no weight changes nothing.
std::optional<Grammes> ChampGrammes::poids() const
{
    const auto lu = Saisie::poids(text());
    const auto *poids = std::get_if<std::optional<Grammes>>(&lu);
    return poids ? *poids : montre_;
}

// A tooltip is not spoken; what describes the field that has the focus is.
void ChampGrammes::refuser()
{
    const QString raison = QStringLiteral("Un nombre entier de grammes, de 0 à %1.").arg(Saisie::ecrit(maximum));
    QToolTip::showText(mapToGlobal(QPoint(0, height())), raison, this);
    if (!description_)
        description_ = accessibleDescription();
    setAccessibleDescription(raison);
}

void ChampGrammes::accepter()
{
    if (!description_)
        return;
    QToolTip::hideText();
    setAccessibleDescription(*std::exchange(description_, std::nullopt));
}

void ChampGrammes::montrer(const std::optional<Grammes> &poids)
{
    montre_ = poids;
    // An emptied field means 0 to some: it stays empty under the typist's hands.
    const bool enCours = hasFocus() && poids.value_or(Grammes{0}) == this->poids().value_or(Grammes{0});
    if (!enCours)
        setText(Saisie::ecrit(poids));
}

// At least 70 px, and always wide enough for the largest weight: a cut one would be misread.
void ChampGrammes::changeEvent(QEvent *evenement)
{
    LigneDeTexte::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange)
        ajusterLaLargeur();
}

void ChampGrammes::ajusterLaLargeur()
{
    setFixedWidth(std::max(70, fontMetrics().horizontalAdvance(Saisie::ecrit(maximum)) + 24));
}

void ChampGrammes::focusOutEvent(QFocusEvent *evenement)
{
    LigneDeTexte::focusOutEvent(evenement);
    if (reviendra(*evenement))
        return;
    accepter();
    setText(Saisie::ecrit(montre_));
}

} // namespace Quillet
