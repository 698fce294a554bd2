#include "walk/walk_recipes.h"

#include "walk/walk_controls.h"

namespace padral::pruebas {

namespace {

using Receta = QList<Tarea>;

Tarea campo(const char16_t* control, const QString& texto) {
    return {QString::fromUtf16(control), texto};
}
Tarea campo(const char16_t* control, const char16_t* texto) {
    return campo(control, QString::fromUtf16(texto));
}
Tarea marca(const char16_t* control) { return {QString::fromUtf16(control), {}, true}; }

QString fecha(qint32 valor, bool euskera) { return TextoDeFecha(valor, euskera).remove(u'/'); }

Receta generales(bool euskera, Azar& azar) {
    constexpr const char16_t* Tipos[] = {u"chkDeclaracionPrevia", u"chkDeclaracionInicio",
                                         u"chkDeclaracionModificacion",
                                         u"chkDeclaracionModificacion", u"chkDeclaracionCese"};
    constexpr const char16_t* Declarantes[] = {u"12345678Z", u"X1234567L", u"A12345674",
                                               u"E12345674", u"N1234567D"};
    constexpr qint32 Cambios[] = {20131231, 20140101, 20141231, 20150101, 20260115};
    Receta r = {campo(u"txtDNI", azar.Uno(Declarantes)), campo(u"txtNombre", u"Lasa Etxe, Jon"),
                campo(u"mskFechaDeclaracion", fecha(20260131, euskera)), marca(u"chkElMismo")};
    const auto* tipo = azar.Uno(Tipos);
    r << marca(tipo);
    if (QString::fromUtf16(tipo) == QStringLiteral("chkDeclaracionModificacion"))
        r << campo(u"mskFechaModificacion", fecha(azar.Uno(Cambios), euskera));
    for (const auto* casilla : {u"chkApartado2", u"chkApartado3", u"chkApartado4", u"chkApartado5",
                                u"chkApartado7", u"chkApartado8", u"chkAnexoII"})
        if (azar.PorCiento(60)) r << marca(casilla);
    return r;
}

/// Yes to the I.V.A. and its general regime, no to the rest.
Receta preguntas() {
    Receta r = {marca(u"chk27"), marca(u"chk29")};
    for (const int no :
         {2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 32, 34, 36, 38, 40, 42, 44, 46, 56})
        r << Tarea{QStringLiteral("chk%1").arg(no), {}, true};
    return r;
}

Receta participe(Azar& azar) {
    constexpr const char16_t* Gente[] = {u"12345678Z", u"X1234567L", u"00000014Z", u"00000023T",
                                         u"A12345674"};
    constexpr const char16_t* Partes[] = {u"50", u"40", u"60", u"100", u"33,33"};
    return {campo(u"txtDNI", azar.Uno(Gente)),
            campo(u"txtNombre", u"Aldabe Ruiz, Ane"),
            campo(u"txtSiglas", u"CL"),
            campo(u"txtDomicilio", u"Mayor"),
            campo(u"txtCodProvincia", u"20"),
            campo(u"txtCodigoPostal", u"20500"),
            campo(u"txtCodMunicipio", u"1"),
            campo(u"txtPorcentaje", azar.Uno(Partes)),
            marca(u"cmdAceptar")};
}

}  // namespace

QList<Tarea> RecetaDe(const QString& formulario, bool euskera, Azar& azar) {
    const auto es = [&](const char16_t* nombre) {
        return formulario.startsWith(QString::fromUtf16(nombre));
    };
    if (es(u"FrmDatGen")) return generales(euskera, azar);
    if (es(u"FrmApartado2"))
        return {campo(u"txtSigDomFis", u"CL"),  campo(u"txtDomFis", u"Errota"),
                campo(u"numCodProvFis", u"20"), campo(u"numCodFis", u"20500"),
                campo(u"numCodMunFis", u"1"),   marca(u"chkDActElMismo")};
    if (es(u"FrmApartado3"))
        return {marca(u"optResidente(0)"), campo(u"txtDescripcionActividad", u"1.6912")};
    if (es(u"frmApartado4")) return {marca(u"ChkEX2")};
    if (es(u"frmApartado5")) return preguntas();
    if (es(u"frmApartado6"))
        return {campo(u"txtFecha", fecha(20260115, euskera)), campo(u"cmbDescripcion", u"1")};
    if (es(u"FrmApartado7")) return {marca(u"chkLimSupPais1"), marca(u"chkDestPais25")};
    if (es(u"frmAnexoII")) return {marca(u"chklbl4Si")};
    if (es(u"frmDatosParticipe")) return participe(azar);
    return {};
}

}  // namespace padral::pruebas
