#include "walk/walk_values.h"

#include <QRegularExpression>

#include "walk/walk_controls.h"

namespace padral::pruebas {

namespace {

constexpr const char* Nifs[] = {"12345678Z", "X1234567L", "A12345674", "B12345674",
                                "E12345674", "N1234567D", "00000014Z", "00000023T"};
constexpr const char* NifsDeEntidad[] = {"E12345674", "G12345674", "J12345674"};
constexpr const char* NifsFalsos[] = {"12345678A", "A12345679", "1234", "ZZZ", "Z"};
constexpr qint32 Fechas[] = {20081231, 20090101, 20131231, 20140101, 20141231,
                             20150101, 20150615, 20200229, 20260115, 20260131};
constexpr const char* FechasFalsas[] = {"31022020", "2", "00000000", "99999999", "18000101"};
constexpr qint32 DiasYMeses[] = {101, 229, 630, 1231};  // mmdd
constexpr const char* DiasFalsos[] = {"3102", "3", "9999"};
constexpr int Provincias[] = {20, 20, 20, 1, 28, 48, 0, 99};
constexpr int Postales[] = {20500, 20001, 20000, 1005, 28001, 48001, 123, 0};
constexpr int Municipios[] = {1, 2, 4, 5, 0, 88};
constexpr int Porcentajes[] = {0, 1, 50, 99, 100, 101, 999};
constexpr const char* PorcentajesDeParte[] = {"60",  "40",     "33,3", "0,01",
                                              "100", "100,01", "0",    "50"};
constexpr const char* Siglas[] = {"CL", "PG", "ac", "AL", "ZZ", "AU"};
constexpr const char* Actividades[] = {"1.6912", "1.011", "9999999", "7.7", "ABC", "1.012"};
constexpr const char* Correos[] = {"ane@etxea.eus", "jon@a.b-c.org", "malo", "a@@b.c", "x@y"};
constexpr const char* Textos[] = {
    "Lasa Etxe, Jon", "Ñuñez Zubia", "ANE", "ibaialde 7", "B-2", "O-Mara", "zz", "3", ""};

bool casa(const QString& nombre, const char* patron) {
    return QRegularExpression(QRegularExpression::anchoredPattern(QString::fromLatin1(patron)))
        .match(nombre)
        .hasMatch();
}

template <class Valores>
Escrito deLista(const Valores& valores, Azar& azar) {
    return {QString::fromUtf8(azar.Uno(valores)), std::nullopt};
}

Escrito nif(const QString& formulario, bool soloValidos, Azar& azar) {
    if (!soloValidos && azar.PorCiento(15)) return deLista(NifsFalsos, azar);
    Escrito e = formulario.startsWith(QStringLiteral("frmApartado4")) ? deLista(NifsDeEntidad, azar)
                                                                      : deLista(Nifs, azar);
    // There another identifier is another participant.
    if (formulario != QStringLiteral("frmDatosParticipe")) e.queda = e.teclas;
    return e;
}

Escrito fecha(bool euskera, bool soloValidos, Azar& azar) {
    if (!soloValidos && azar.PorCiento(15)) return deLista(FechasFalsas, azar);
    if (!soloValidos && azar.PorCiento(10)) return {QString(), std::nullopt};
    const qint32 valor = azar.Uno(Fechas);
    return {TextoDeFecha(valor, euskera).remove(u'/'), QString::number(valor)};
}

Escrito diaYMes(bool soloValidos, Azar& azar) {
    if (!soloValidos && azar.PorCiento(20)) return deLista(DiasFalsos, azar);
    const qint32 valor = azar.Uno(DiasYMeses);
    const QString cifras = QString::number(valor).rightJustified(4, u'0');
    return {cifras.right(2) + cifras.left(2), QString::number(valor)};
}

Escrito numero(int valor) { return {QString::number(valor), QString::number(valor)}; }

Escrito telefono(Azar& azar) {
    if (azar.PorCiento(10)) return {QStringLiteral("0"), QStringLiteral("0")};
    return numero(azar.PorCiento(80) ? 943000000 + azar.Hasta(999999) : azar.Hasta(9999));
}

Escrito texto(const QLineEdit& campo, bool soloValidos, Azar& azar) {
    // The declarant signs by a box, not by that text.
    if (!soloValidos && azar.PorCiento(3)) return {QStringLiteral("el mismo"), std::nullopt};
    Escrito e = deLista(Textos, azar);
    if (soloValidos || azar.PorCiento(30)) e.teclas += QString::number(azar.Hasta(1000));
    e.queda = SinRelleno(e.teclas.toUpper().left(campo.maxLength()));
    return e;
}

}  // namespace

Escrito ElegirEscrito(const QString& formulario, const QLineEdit& campo, bool euskera,
                      bool soloValidos, Azar& azar) {
    const QString nombre = campo.objectName();
    if (casa(nombre, "txtDNI.*|txtNIF")) return nif(formulario, soloValidos, azar);
    if (nombre == QStringLiteral("mskFechaCierre")) return diaYMes(soloValidos, azar);
    if (casa(nombre, "mskFecha.*|txtFecha|txtInscripcion"))
        return fecha(euskera, soloValidos, azar);
    if (casa(nombre, "numCodProv.*|txtCodProvincia|numCodigoProvincia"))
        return {QString::number(soloValidos ? 20 : azar.Uno(Provincias)), std::nullopt};
    if (casa(nombre, "numCodMun.*|txtCodMunicipio|numCodigoMunicipio"))
        return {QString::number(soloValidos ? 1 : azar.Uno(Municipios)), std::nullopt};
    if (casa(nombre, "numCod.*|txtCodigoPostal"))
        return numero(soloValidos ? 20500 : azar.Uno(Postales));
    if (casa(nombre, "numPorcen.*")) return numero(soloValidos ? 50 : azar.Uno(Porcentajes));
    if (nombre == QStringLiteral("txtPorcentaje"))
        return soloValidos ? Escrito{QStringLiteral("50"), QStringLiteral("50.00")}
                           : deLista(PorcentajesDeParte, azar);
    if (casa(nombre, "num(Tel|Fax|Movil|Fijo).*|txtTelefono")) return telefono(azar);
    if (casa(nombre, "numNum.*|txtNumero")) return numero(azar.Hasta(99999));
    if (casa(nombre, "txtSigDom.*|txtSiglas"))
        return soloValidos ? Escrito{QStringLiteral("CL"), {}} : deLista(Siglas, azar);
    if (nombre == QStringLiteral("txtDescripcionActividad")) return deLista(Actividades, azar);
    if (nombre == QStringLiteral("txtDirCorreo")) return deLista(Correos, azar);
    return texto(campo, soloValidos, azar);
}

}  // namespace padral::pruebas
