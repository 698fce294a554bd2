#include "matrix_cases.h"

#include <tuple>

namespace padral::pruebas {

namespace {

/// The annexes behind the numbers of the sections.
constexpr QChar AnexoI = u'8', AnexoII = u'9';

QString Q(const char16_t* texto) { return QString::fromUtf16(texto); }

void Anadir(QString& parte, const QString& texto) { parte += texto + u'\n'; }

/// Section 5 of who is in the general regime of the I.V.A., but for how the income is taxed.
constexpr const char16_t* CasillasComunes = u"2 6 8 10 12 14 16 17 20";
constexpr const char16_t* CasillasConIva = u"27 29 32 34 38 40 42 44 46 56";
/// Who has ended pays no I.V.A.
constexpr const char16_t* CasillasSinIva = u"28 48 50 52 54";

}  // namespace

Guion Redaccion::Escribir() {
    generales();
    pantallas();
    Anadir(entrada_, QStringLiteral("[FrmDatGen]\npress cmdAceptar"));
    const QString nombre =
        QStringLiteral("%1, %2, %3")
            .arg(QString::fromUtf8(tipo_.nombre), QString::fromUtf8(persona_.nombre))
            .arg(dia_);
    return LeerGuionDe(nombre, QStringLiteral("== enter\n") + entrada_ +
                                   QStringLiteral("== walk\n") + recorrido_ +
                                   QStringLiteral("== change\n[FrmDatGen]\n"
                                                  "txtNumeroArchivo = M/2\npress cmdAceptar\n"));
}

QMap<QString, QString> Redaccion::Guardado() const {
    QString marcas = QStringLiteral("--------");
    for (const QChar numero : apartados()) marcas[numero.digitValue() - 2] = u'X';
    if (conParticipes()) marcas[6] = u'X';
    if (conAnexoII()) marcas[7] = u'X';
    const QString dia = QString::number(dia_);
    QMap<QString, QString> filas{{QStringLiteral("TDeclaraciones FECHADECLARACION"), dia}};
    if (marcas.contains(u'X')) filas[QStringLiteral("TDeclaraciones APARTADOS")] = marcas;
    if (tipo_.letra != 0) filas[QStringLiteral("TDeclaraciones Causa1")] = QChar(tipo_.letra);
    filas[fechaVigor()] = dia;
    return filas;
}

int Redaccion::Paginas() const {
    const auto alguno = [this](const char16_t* numeros) {
        for (const QChar numero : Q(numeros))
            if (apartados().contains(numero)) return 1;
        return 0;
    };
    return 1 + alguno(u"23") + alguno(u"45") + alguno(u"67") + (conParticipes() ? 1 : 0) +
           (conAnexoII() ? 1 : 0);
}

QString Redaccion::fecha() const {
    const QString dia = QString::number(dia_);
    return dia.mid(6) + u'/' + dia.mid(4, 2) + u'/' + dia.left(4);
}

QString Redaccion::apartados() const {
    return sinIdentificador() ? QStringLiteral("2") : Q(tipo_.apartados);
}

/// The column from which the effective date comes; requests have none.
QString Redaccion::fechaVigor() const {
    switch (tipo_.letra) {
        case u'M':
            return QStringLiteral("TDeclaraciones FechaModificacion");
        case u'C':
            return QStringLiteral("TApartado6 FECHACESE");
        case 0:
            return QStringLiteral("TDeclaraciones FECHADECLARACION");
        default:
            return QStringLiteral("TApartado3 FechaInicio");
    }
}

QString Redaccion::edicion(const QString& pantalla) const {
    return u'[' + pantalla + (dia_ >= Edicion2015 ? QStringLiteral("_2015]") : QStringLiteral("]"));
}

void Redaccion::generales() {
    Anadir(entrada_, QStringLiteral("[FrmDatGen]"));
    Anadir(recorrido_, QStringLiteral("[FrmDatGen]\ncmbMotivoCambio = 00-No hay cambios"));
    if (sinIdentificador())
        Anadir(entrada_, QStringLiteral("tick chkPorComienzo chkElMismo chkApartado2\n"
                                        "mskFechaConst = ") +
                             fecha());
    else
        Anadir(entrada_, Q(persona_.identidad) + QStringLiteral("\ntick ") + Q(tipo_.casilla));
    Anadir(entrada_, QStringLiteral("txtNombre = Lasa Etxe ; txtNumeroArchivo = M/1\n"
                                    "mskFechaDeclaracion = ") +
                         fecha());
    if (tipo_.letra == u'M') Anadir(entrada_, QStringLiteral("mskFechaModificacion = ") + fecha());
    if (Q(persona_.identidad).contains(QStringLiteral("ElMismo")))
        Anadir(recorrido_, QStringLiteral("txtFirmaEnCalidadDe = EL MISMO"));
    marcarApartados();
}

/// The type marks some sections by itself.
void Redaccion::marcarApartados() {
    for (const QChar numero : Q(tipo_.apartados)) {
        const bool porMarcar = Q(tipo_.porMarcar).contains(numero);
        Anadir(porMarcar ? entrada_ : recorrido_, QStringLiteral("tick chkApartado") + numero);
    }
    if (conAnexoII()) Anadir(entrada_, QStringLiteral("tick chkAnexoII"));
    if (conParticipes())
        Anadir(tipo_.letra == u'M' ? entrada_ : recorrido_, QStringLiteral("tick chkApartado8"));
}

/// The screens in the order of the form, each from the one before. A cessation goes back to the
/// general data between section 6 and section 5: the date of effect comes from the first.
QString Redaccion::camino() const {
    QString todas = tipo_.letra == u'C' ? QStringLiteral("65") : apartados();
    if (conParticipes()) todas += AnexoI;
    if (conAnexoII()) todas += AnexoII;
    return todas;
}

void Redaccion::pantallas() {
    const QString camino = this->camino();
    for (qsizetype i = 0; i < camino.size(); ++i) {
        if (i == 0 || tipo_.letra == u'C') abrir(camino[i]);
        pantalla(camino[i]);
        const bool ultima = i + 1 == camino.size() || tipo_.letra == u'C';
        const QString siguiente = camino[i] == u'2' ? QStringLiteral("cmdApartadoSiguiente")
                                                    : QStringLiteral("cmdSiguiente");
        Anadir(entrada_,
               QStringLiteral("press ") + (ultima ? QStringLiteral("cmdInicio") : siguiente));
    }
}

void Redaccion::abrir(QChar numero) {
    Anadir(entrada_, QStringLiteral("[FrmDatGen]\npress ") +
                         (numero == AnexoI    ? QStringLiteral("cmdAnexo")
                          : numero == AnexoII ? QStringLiteral("cmdAnexoII")
                                              : QStringLiteral("cmdApartado") + numero));
}

void Redaccion::pantalla(QChar numero) {
    if (numero == u'2') domicilio();
    if (numero == u'3') censo();
    if (numero == u'4') solicitudes();
    if (numero == u'5') situacion();
    if (numero == u'6') cese();
    if (numero == AnexoI) participes();
    if (numero == AnexoII) anexoII();
}

void Redaccion::domicilio() {
    Anadir(entrada_, QStringLiteral("[FrmApartado2]\ntxtSigDomFis = CL ; txtDomFis = Errota ; "
                                    "numCodProvFis = 20 ; numCodFis = 20500 ; numCodMunFis = 1\n"
                                    "tick chkDActElMismo"));
    Anadir(recorrido_, QStringLiteral("[FrmApartado2]\ntxtViaFis = Calle ; txtProvFis = "
                                      "Kelmaria ; txtMunFis = Aldabarri"));
}

void Redaccion::censo() {
    // Without a date of effect yet it opens in the edition before 2015.
    const bool conFecha = tipo_.letra == u'M';
    const QString pantalla = QStringLiteral("FrmApartado3");
    Anadir(entrada_, conFecha ? edicion(pantalla) : u'[' + pantalla + u']');
    Anadir(entrada_, Q(persona_.censo) + QStringLiteral("\ntxtDescripcionActividad = 1.7212"));
    if (!conFecha) Anadir(entrada_, QStringLiteral("mskFechaInicio = ") + fecha());
    Anadir(recorrido_,
           edicion(pantalla) + QStringLiteral("\ncmbEpigrafe = TRANSPORTE POR AUTOTAXIS"));
    if (const QString forma = Q(persona_.formaJuridica); !forma.isEmpty())
        Anadir(recorrido_, QStringLiteral("numFormaJuridica = ") + forma);
}

void Redaccion::solicitudes() {
    const QString pantalla = edicion(QStringLiteral("frmApartado4"));
    Anadir(entrada_, pantalla + QStringLiteral("\ntick ChkEX1"));
    Anadir(recorrido_, pantalla);
}

void Redaccion::situacion() {
    const bool cesa = tipo_.letra == u'C';
    QString casillas = Q(CasillasComunes) + u' ' + Q(persona_.casillas) + u' ' +
                       Q(cesa ? CasillasSinIva : CasillasConIva);
    if (dia_ < Edicion2014) casillas += QStringLiteral(" 24");
    if (dia_ < Edicion2015 && !cesa) casillas += QStringLiteral(" 36");
    const QString pantalla = edicion(QStringLiteral("frmApartado5"));
    Anadir(entrada_, pantalla);
    for (const QString& casilla : casillas.split(u' '))
        Anadir(entrada_, QStringLiteral("tick chk") + casilla);
    Anadir(recorrido_, pantalla + u'\n' + cese_);
}

/// Looked at after section 5, which is entered after it.
void Redaccion::cese() {
    const QString causa = Q(persona_.causa);
    Anadir(entrada_, QStringLiteral("[frmApartado6]\ntxtFecha = ") + fecha() +
                         QStringLiteral("\nchoose cmbDescripcion = ") + causa);
    cese_ = QStringLiteral("[frmApartado6]\ntxtCausa = %1")
                .arg(causa.endsWith(QStringLiteral("DISOLUCION")) ? 20 : 10);
}

void Redaccion::participes() {
    Anadir(recorrido_, QStringLiteral("[frmListaParticipes]\n"
                                      "row1 = 12345678Z / LASA, ANE / MAYOR / ALDABARRI / 60,00\n"
                                      "row2 = X1234567L / LASA, JON / MAYOR / ALDABARRI / 40,00"));
    participe(QStringLiteral("12345678Z"), QStringLiteral("Lasa, Ane"), QStringLiteral("60,00"));
    Anadir(entrada_, QStringLiteral("press cmdOtroParticipe"));
    participe(QStringLiteral("X1234567L"), QStringLiteral("Lasa, Jon"), QStringLiteral("40,00"));
    Anadir(entrada_, QStringLiteral("press cmdVolver\n[frmListaParticipes]"));
}

void Redaccion::participe(const QString& nif, const QString& nombre, const QString& parte) {
    const QString cabecera = QStringLiteral("[frmDatosParticipe %1]").arg(nif);
    Anadir(entrada_, cabecera + QStringLiteral("\ntxtDNI = %1 ; txtNombre = %2 ; txtSiglas = CL ; "
                                               "txtDomicilio = Mayor ; txtCodProvincia = 20 ; "
                                               "txtCodigoPostal = 20500 ; txtCodMunicipio = 1 ; "
                                               "txtPorcentaje = %3\npress cmdAceptar")
                                    .arg(nif, nombre, parte));
    Anadir(recorrido_, cabecera + QStringLiteral("\ntxtDescripcion = Calle ; txtProvincia = "
                                                 "Kelmaria ; txtMunicipio = Aldabarri"));
}

void Redaccion::anexoII() {
    Anadir(entrada_, QStringLiteral("[frmAnexoII]\n"
                                    "txtDomicilio = Hafenstrasse 7 ; txtNombreMunicipio = "
                                    "Hamburg ; txtNacionalidad = Alemania"));
    // The special pro rata ended with 2013.
    if (dia_ < Edicion2014) Anadir(entrada_, QStringLiteral("tick chkOpcion"));
    Anadir(recorrido_, QStringLiteral("[frmAnexoII]\nnumCodigoProvincia = 00 ; numPorcentaje = 0"));
}

}  // namespace padral::pruebas
