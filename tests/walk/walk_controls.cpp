#include "walk/walk_controls.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>

namespace padral::pruebas {

namespace {

QString dosCifras(int numero) { return QString::number(numero).rightJustified(2, u'0'); }

/// Whether what is shown is what the property holds.
bool coincide(const Mando& mando, const QString& mostrado, const QString& valor, bool euskera) {
    switch (mando.forma) {
        case Forma::Texto:
            return SinRelleno(mostrado) == valor;
        case Forma::Numero:
            return mostrado.toLongLong() == valor.toLongLong();
        case Forma::Decimal:
            return QString(mostrado).replace(u',', u'.').toDouble() == valor.toDouble();
        case Forma::Fecha:
            return mostrado == TextoDeFecha(valor.toInt(), euskera);
        case Forma::DiaYMes:
            return mostrado == (valor.toInt() == 0 ? QStringLiteral("__/__")
                                                   : dosCifras(valor.toInt() % 100) + u'/' +
                                                         dosCifras(valor.toInt() / 100));
        case Forma::Casilla:
            return (mostrado == u'X') == (valor == mando.valor);
        case Forma::Codigo:
            return mostrado.startsWith(dosCifras(valor.toInt()));
    }
    return false;
}

/// A question whose control shows nothing of it while another answer rules: the percentage is 0
/// on the screen while the pro-rata rule is asked for.
bool callado(const Mando& mando, const Retrato& retrato) {
    return mando.control == QStringLiteral("numPorcentaje") &&
           retrato.value(QStringLiteral("A.OpcionApl")) == u'O';
}

}  // namespace

QString TextoDeFecha(qint32 fecha, bool euskera) {
    if (fecha == 0) return euskera ? QStringLiteral("____/__/__") : QStringLiteral("__/__/____");
    const QString anyo = QString::number(fecha / 10000).rightJustified(4, u'0');
    const QString mes = dosCifras(fecha / 100 % 100), dia = dosCifras(fecha % 100);
    return (euskera ? QStringList{anyo, mes, dia} : QStringList{dia, mes, anyo}).join(u'/');
}

QString LoQueMuestra(const QWidget* control) {
    if (const auto* campo = qobject_cast<const QLineEdit*>(control)) return campo->displayText();
    if (const auto* combo = qobject_cast<const QComboBox*>(control)) return combo->currentText();
    const auto* boton = qobject_cast<const QAbstractButton*>(control);
    return boton && boton->isChecked() ? QStringLiteral("X") : QString();
}

QStringList Desacuerdos(const QWidget& pantalla, const Retrato& retrato, bool euskera,
                        const QStringList& salvo) {
    QStringList faltas;
    for (const auto& mando : MandosDe(pantalla.objectName())) {
        if (salvo.contains(mando.control) || callado(mando, retrato)) continue;
        const auto* control = pantalla.findChild<QWidget*>(mando.control);
        if (!control) {
            faltas << mando.control + QStringLiteral(" is not there");
            continue;
        }
        // A question that the date has taken off the screen.
        if (control->isHidden()) continue;
        const QString mostrado = LoQueMuestra(control), valor = retrato.value(mando.propiedad);
        if (!coincide(mando, mostrado, valor, euskera))
            faltas << QStringLiteral("%1 shows \"%2\", %3 holds \"%4\"")
                          .arg(mando.control, mostrado, mando.propiedad, valor);
    }
    return faltas;
}

}  // namespace padral::pruebas
