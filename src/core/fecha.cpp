#include "core/fecha.h"

#include <array>

#include "core/field_rules.h"
#include "core/text_catalogue.h"

namespace padral {

namespace {

constexpr int TextoErrorFecha = 2;

struct Partes {
    int anyo, mes, dia;
};

/// A part that must be digits throughout; "0" is put before it.
int parteEntera(const QString& texto) {
    bool vale = true;
    for (const QChar c : texto) vale = vale && c >= u'0' && c <= u'9';
    if (!vale) throw ErrorDeConversion{};
    return (QStringLiteral("0") + texto).toInt();
}

/// The last part runs to the end of the text and is read by its leading digits; what follows
/// them after a blank does not count.
int partePorCabeza(const QString& texto) {
    qsizetype n = 0;
    while (n < texto.size() && texto[n] >= u'0' && texto[n] <= u'9') ++n;
    if (n < texto.size() && !texto[n].isSpace()) throw ErrorDeConversion{};
    return (QStringLiteral("0") + texto.left(n)).toInt();
}

Partes cortar(const QString& fecha, bool diaPrimero) {
    if (diaPrimero)
        return {partePorCabeza(fecha.mid(6)), parteEntera(fecha.mid(3, 2)),
                parteEntera(fecha.mid(0, 2))};
    return {parteEntera(fecha.mid(0, 4)), parteEntera(fecha.mid(5, 2)),
            partePorCabeza(fecha.mid(8))};
}

bool bisiesto(int anyo) { return anyo % 4 == 0 && (anyo % 100 != 0 || anyo % 400 == 0); }

bool diaDelMes(int dia, int mes, bool febreroLargo) {
    static constexpr std::array<int, 12> Dias = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (mes < 1 || mes > 12 || dia < 1) return false;
    const int extra = mes == 2 && febreroLargo ? 1 : 0;
    return dia <= Dias[static_cast<std::size_t>(mes - 1)] + extra;
}

}  // namespace

cFecha::cFecha(const CatalogoTextos& textos) : textos_(textos) {}

QString cFecha::FecVacia() const {
    return fecidioma == QStringLiteral("E") ? vaciaAnyoPrimero_ : vaciaDiaPrimero_;
}

int cFecha::miYear(const QString& fecha) const {
    if (fecidioma == QStringLiteral("E")) return ValorNumerico(fecha.left(4));
    return ValorNumerico(fecha.mid(6));
}

bool cFecha::EsFecha(const QString& fecha, std::optional<int> anyoMinimo) const {
    if (fecha == FecVacia()) return true;
    try {
        const auto p = cortar(fecha, fecidioma == QStringLiteral("C"));
        if (p.anyo < 1000) return false;
        if (anyoMinimo && p.anyo < *anyoMinimo) return false;
        return diaDelMes(p.dia, p.mes, bisiesto(p.anyo));
    } catch (const ErrorDeConversion&) {
        return false;
    }
}

qint32 cFecha::StringToLong(const QString& fecha, std::optional<int> anyoMinimo) const {
    if (fecha == FecVacia()) return 0;
    if (!EsFecha(fecha, anyoMinimo)) return -1;
    try {
        const bool diaPrimero = fecidioma == QStringLiteral("C");
        const int anyo = parteEntera(diaPrimero ? fecha.right(4) : fecha.left(4));
        const int mes = parteEntera(diaPrimero ? fecha.mid(3, 2) : fecha.mid(5, 2));
        const int dia = parteEntera(diaPrimero ? fecha.left(2) : fecha.right(2));
        return anyo * 10000 + mes * 100 + dia;
    } catch (const ErrorDeConversion&) {
        return 0;
    }
}

QString cFecha::LongToString(qint32 valor, std::optional<bool> ddmmaaaa) {
    if (valor < 1) return FecVacia();
    const QString n = QString::number(valor);
    const QString anyo = ddmmaaaa ? n.right(4) : n.left(4);
    const QString mes = ddmmaaaa ? n.mid(2, 2) : n.mid(4, 2);
    const QString dia = ddmmaaaa ? n.left(2) : n.right(2);
    const bool diaPrimero = fecidioma == QStringLiteral("C");
    const QString texto =
        diaPrimero ? dia + u'/' + mes + u'/' + anyo : anyo + u'/' + mes + u'/' + dia;
    if (EsFecha(texto)) return texto;
    guardarError();
    return FecVacia();
}

void cFecha::guardarError() {
    const bool euskera = fecidioma == QStringLiteral("E");
    ultimoError_ =
        textos_.Texto(TextoErrorFecha + (euskera ? CatalogoTextos::DesplazamientoEuskera : 0));
}

QString cFecha::FecVaciaMMDD() const { return QStringLiteral("__/__"); }

bool cFecha::EsFechaMMDD(const QString& fecha) const {
    return diaDelMes(parteEntera(fecha.mid(0, 2)), parteEntera(fecha.mid(3, 2)), true);
}

qint32 cFecha::StringToLongMMDD(const QString& fecha) const {
    if (fecha == FecVaciaMMDD()) return 0;
    try {
        return parteEntera(fecha.right(2)) * 100 + parteEntera(fecha.left(2));
    } catch (const ErrorDeConversion&) {
        return 0;
    }
}

QString cFecha::LongToStringMMDD(qint32 valor) {
    if (valor < 1) return FecVaciaMMDD();
    const QString n = QString::number(valor).rightJustified(4, u'0');
    const QString texto = n.right(2) + u'/' + n.left(2);
    if (EsFechaMMDD(texto)) return texto;
    guardarError();
    return FecVaciaMMDD();
}

}  // namespace padral
