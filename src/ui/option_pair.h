#pragma once

#include <QCheckBox>
#include <functional>

#include "core/field_rules.h"

namespace padral {

class GuardiaCampos;

/// Two check boxes for one answer: at most one of them is ticked. It goes with their parent.
class ParejaCasillas : public QObject {
    Q_OBJECT
public:
    /// The boxes get these object names and stand in no layout yet.
    ParejaCasillas(const QString& nombreSi, const QString& nombreNo, QWidget* padre);

    QCheckBox* Si() const { return si_; }
    QCheckBox* No() const { return no_; }
    /// Which box is ticked.
    MarcaPareja Marca() const;
    /// Ticks one box or none, without reaction.
    void Presentar(MarcaPareja marca);
    /// `alPulsar` gets the answer after each click of the user. A click that leaves a field which
    /// is refused leaves the boxes as they were.
    void AlPulsar(GuardiaCampos& guardia, const std::function<void(MarcaPareja)>& alPulsar);

private:
    QCheckBox *si_, *no_;
};

}  // namespace padral
