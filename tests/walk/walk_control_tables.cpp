// The screens' controls with the properties that they show.

#include "walk/walk_controls.h"

namespace padral::pruebas {

namespace {

struct FilaMando {
    const char16_t *control, *propiedad;
    Forma forma = Forma::Texto;
    const char16_t* valor = u"";
};

constexpr auto Num = Forma::Numero, Fec = Forma::Fecha, Box = Forma::Casilla;

constexpr FilaMando Generales[] = {
    {u"txtDNI", u"G.DNI"},
    {u"txtNombre", u"G.NOMBRE"},
    {u"txtNumeroArchivo", u"G.NumeroArchivo"},
    {u"mskFechaDeclaracion", u"G.FECHADECLARACION", Fec},
    {u"mskFechaModificacion", u"G.FechaModificacion", Fec},
    {u"mskFechaConst", u"G.FechaConstitucion", Fec},
    {u"mskFechaInscrip", u"G.FechaInscripcion", Fec},
    {u"txtDNIRepresentante", u"G.DNIRepresentante"},
    {u"txtNombreRepresentante", u"G.NombreRepresentante"},
    {u"txtFirmaEnCalidadDe", u"G.FirmaEnCalidadDe"},
    {u"chkElMismo", u"G.ElMismo", Box, u"X"},
    {u"txtDNIAnterior", u"G.DNIAnterior"},
    {u"txtNombreAnterior", u"G.NombreAnterior"},
    {u"cmbMotivoCambio", u"G.MotivoCambio", Forma::Codigo},
    {u"chkDeclaracionPrevia", u"G.Causa1", Box, u"P"},
    {u"chkDeclaracionInicio", u"G.Causa1", Box, u"I"},
    {u"chkDeclaracionModificacion", u"G.Causa1", Box, u"M"},
    {u"chkDeclaracionCese", u"G.Causa1", Box, u"C"},
    {u"chkPorComienzo", u"G.Causa2", Box, u"A"},
    {u"chkModificacionFormaJuridica", u"G.Causa2", Box, u"B"},
    {u"chkAnulacionPorCese", u"G.Causa2", Box, u"C"},
    {u"chkPorExtravio", u"G.Causa2", Box, u"D"},
    {u"chkPorDefinitivo", u"G.Causa2", Box, u"E"},
    {u"chkPorOtrasCausas", u"G.Causa2", Box, u"F"},
    {u"chkApartado2", u"G.Apartado2", Box, u"X"},
    {u"chkApartado3", u"G.Apartado3", Box, u"X"},
    {u"chkApartado4", u"G.Apartado4", Box, u"X"},
    {u"chkApartado5", u"G.Apartado5", Box, u"X"},
    {u"chkApartado6", u"G.Apartado6", Box, u"X"},
    {u"chkApartado7", u"G.Apartado7", Box, u"X"},
    {u"chkApartado8", u"G.AnexoI", Box, u"X"},
    {u"chkAnexoII", u"G.AnexoII", Box, u"X"},
};

/// Of one domicile, without its suffix.
constexpr FilaMando Domicilio[] = {
    {u"txtSigDom", u"2.SiglasDomicilio"},
    {u"txtVia", u"2.DescripcionSiglas"},
    {u"txtDom", u"2.NombreDomicilio"},
    {u"numNum", u"2.Numero", Num},
    {u"txtLet", u"2.Letra"},
    {u"txtEsc", u"2.Escalera"},
    {u"txtPis", u"2.Piso"},
    {u"txtMan", u"2.Mano"},
    {u"numCodProv", u"2.CodigoProvincia", Num},
    {u"txtProv", u"2.NombreProvincia"},
    {u"numCod", u"2.CodigoPostal", Num},
    {u"numCodMun", u"2.CodigoMunicipio", Num},
    {u"txtMun", u"2.NombreMunicipio"},
    {u"numTel", u"2.Telefono", Num},
};
constexpr FilaMando MarcasDomicilio[] = {
    {u"chkDSocElMismo", u"2.ElMismoSoc", Box, u"X"},
    {u"chkDActElMismo", u"2.ElMismoAct", Box, u"X"},
    {u"chkDNotElMismo", u"2.ElMismoNot", Box, u"X"},
};

constexpr FilaMando Censo[] = {
    {u"optResidente(0)", u"3.ResidenteKelmaria", Box, u"S"},
    {u"optResidente(1)", u"3.ResidenteKelmaria", Box, u"N"},
    {u"numPorcenIVA", u"3.PorcenDeduccion", Num},
    {u"mskFechaInicio", u"3.FechaInicio", Fec},
    {u"txtDescripcionActividad", u"3.ActivEcon"},
    {u"txtAnagrama", u"3.Anagrama"},
    {u"mskFechaCierre", u"3.FechaCierre", Forma::DiaYMes},
    {u"chkSocPat", u"3.SocPat", Box, u"X"},
    {u"chkCastellano", u"3.IdiomaPref", Box, u"C"},
    {u"chkEuskera", u"3.IdiomaPref", Box, u"E"},
    {u"chkPostal", u"3.MedioPref", Box, u"P"},
    {u"chkElectronico", u"3.MedioPref", Box, u"E"},
    {u"chkCorreoAlta", u"3.Correo", Box, u"A"},
    {u"chkCorreoBaja", u"3.Correo", Box, u"B"},
    {u"txtDirCorreo", u"3.DirCorreo"},
    {u"chkFaxAlta", u"3.Fax", Box, u"A"},
    {u"chkFaxBaja", u"3.Fax", Box, u"B"},
    {u"numFax", u"3.numFax", Num},
    {u"chkTelMovilAlta", u"3.Movil", Box, u"A"},
    {u"chkTelMovilBaja", u"3.Movil", Box, u"B"},
    {u"numMovil", u"3.numMovil", Num},
    {u"chkTelFijoAlta", u"3.Fijo", Box, u"A"},
    {u"chkTelFijoBaja", u"3.Fijo", Box, u"B"},
    {u"numFijo", u"3.numFijo", Num},
    {u"chkConsentimiento", u"3.Consentimiento", Box, u"S"},
    {u"chkRevocacion", u"3.Revocacion", Box, u"S"},
};
constexpr FilaMando Censo2015[] = {{u"chkActVenMov", u"3.ActVenMov", Box, u"X"}};

constexpr FilaMando Solicitudes[] = {
    {u"ChkED1", u"4.IRPFDIRECT", Box, u"O"},
    {u"ChkED2", u"4.IRPFDIRECT", Box, u"R"},
    {u"ChkED3", u"4.IRPFDIRECT", Box, u"E"},
    {u"ChkCaja1", u"4.IVACAJA", Box, u"O"},
    {u"ChkCaja2", u"4.IVACAJA", Box, u"R"},
    {u"ChkCaja3", u"4.IVACAJA", Box, u"E"},
    {u"ChkAG1", u"4.IVAAGRIC", Box, u"A"},
    {u"ChkAG2", u"4.IVAAGRIC", Box, u"R"},
    {u"ChkAG3", u"4.IVAAGRIC", Box, u"E"},
    {u"ChkSI1", u"4.IVASIMPLIF", Box, u"A"},
    {u"ChkSI2", u"4.IVASIMPLIF", Box, u"R"},
    {u"ChkSI3", u"4.IVASIMPLIF", Box, u"E"},
    {u"ChkEX1", u"4.IVAEXPORT", Box, u"A"},
    {u"ChkEX2", u"4.IVAEXPORT", Box, u"B"},
    {u"ChkEXIntr1", u"4.IVAEXPORTINTRA", Box, u"A"},
    {u"ChkEXIntr2", u"4.IVAEXPORTINTRA", Box, u"B"},
    {u"ChkBI1", u"4.IVABIENES", Box, u"O"},
    {u"ChkBI2", u"4.IVABIENES", Box, u"R"},
    {u"ChkSO1", u"4.IVASOCIO", Box, u"S"},
    {u"ChkSO2", u"4.IVASOCIO", Box, u"N"},
    {u"txtNIF", u"4.NIF"},
    {u"txtNombre", u"4.NOMBRE"},
    {u"ChkSONF1", u"4.SONF", Box, u"O"},
    {u"ChkSONF2", u"4.SONF", Box, u"R"},
};
constexpr FilaMando Solicitudes2014[] = {
    {u"ChkEO1", u"4.IRPFOBJET", Box, u"O"},   {u"ChkEO2", u"4.IRPFOBJET", Box, u"R"},
    {u"ChkEO3", u"4.IRPFOBJET", Box, u"E"},   {u"ChkVI1", u"4.IVAAGENCIAS", Box, u"O"},
    {u"ChkVI2", u"4.IVAAGENCIAS", Box, u"R"},
};
constexpr FilaMando Solicitudes2015[] = {
    {u"ChkCuoAdu1", u"4.IVACUOADU", Box, u"O"},
    {u"ChkCuoAdu2", u"4.IVACUOADU", Box, u"R"},
    {u"ChkCuoAdu3", u"4.IVACUOADU", Box, u"E"},
};

/// Questions of section 5: the yes box has the number, the no box the next one.
constexpr struct {
    int si;
    const char16_t* propiedad;
    bool solo2014 = false;
} Preguntas[] = {
    {1, u"GRANEMPRESA"},
    {3, u"SOCIEDADES"},
    {5, u"ADMINISTRACIONES"},
    {7, u"EXENTASOCI"},
    {9, u"ART117"},
    {11, u"COOPERATIVA"},
    {13, u"CONSOLIDACION"},
    {15, u"DOMINANTE"},
    {17, u"SATISRENDTRAB"},
    {19, u"SATISRENDARREN"},
    {21, u"IRPFDIRECTA"},
    {23, u"IRPFOBJETIVA", true},
    {25, u"IRPFDIRECTSIMPLIF"},
    {27, u"IVA"},
    {29, u"GENERAL"},
    {31, u"RECARGO"},
    {33, u"AGENCIASOPERACION"},
    {35, u"AGENCIASGLOBAL", true},
    {37, u"BIENESUSADOS"},
    {39, u"BIENESMARGEN"},
    {41, u"Agric"},
    {43, u"SIMPLIF"},
    {45, u"OPEXSINDCHO"},
    {55, u"IVACAJA"},
    {47, u"NORECARGO"},
    {49, u"NOAGRIC"},
    {51, u"NOEXENTAS"},
    {53, u"NOCONCIERTO"},
};

constexpr FilaMando Cese[] = {
    {u"txtFecha", u"6.FECHACESE", Fec},
    {u"txtInscripcion", u"6.FechaInscripcion", Fec},
    {u"txtCausa", u"6.CAUSA", Num},
};

constexpr FilaMando Sujetos[] = {
    {u"chkAgric", u"7.Agric", Box, u"S"},
    {u"chkExentos", u"7.Exentos", Box, u"S"},
    {u"chkNoEmp", u"7.NoEmpresarios", Box, u"S"},
    {u"chkMasLimEuros", u"7.MasLimEuros", Box, u"S"},
    {u"chkMenosLimEuros", u"7.MasLimEuros", Box, u"N"},
    {u"chkOpcion", u"7.TributDestino", Box, u"O"},
    {u"chkRevocacion", u"7.TributDestino", Box, u"R"},
};
/// Of one member state, without its number.
constexpr FilaMando Estado[] = {
    {u"chkLimSupPais", u"7.LimSupPais", Box, u"S"},
    {u"chkLimInfPais", u"7.LimSupPais", Box, u"N"},
    {u"chkDestPais", u"7.DestRevocPais", Box, u"D"},
    {u"chkRevPais", u"7.DestRevocPais", Box, u"R"},
};

constexpr FilaMando NoResidentes[] = {
    {u"txtDomicilio", u"A.DireccionDom"},
    {u"txtNombreMunicipio", u"A.PoblacionDom"},
    {u"txtNacionalidad", u"A.Nacionalidad"},
    {u"txtFormaJuridica", u"A.FormaJuridica"},
    {u"chklbl1Si", u"A.TerritorioHistorico", Box, u"S"},
    {u"chklbl1No", u"A.TerritorioHistorico", Box, u"N"},
    {u"chkCierra", u"A.ModalidadEstablecimiento", Box, u"A"},
    {u"chkOcasional", u"A.ModalidadEstablecimiento", Box, u"B"},
    {u"chkNoCierra", u"A.ModalidadEstablecimiento", Box, u"C"},
    {u"chklbl2Si", u"A.OtrosEstablecimientos", Box, u"S"},
    {u"txtNIF", u"A.NIFRepresentante"},
    {u"txtNombre", u"A.NombreRepresentante"},
    {u"txtNacionalidadRep", u"A.NacionalidadRepresentante"},
    {u"txtRepDomicilio", u"A.DomicilioRepresentante"},
    {u"numCodigoMunicipio", u"A.CodigoMunicipio", Num},
    {u"txtNombreMunRepr", u"A.NombreMunicipio"},
    {u"numCodigoProvincia", u"A.CodigoProvincia", Num},
    {u"txtNombreProvincia", u"A.NombreProvincia"},
    {u"chklbl5Si", u"A.Obligado", Box, u"S"},
    {u"chklbl5No", u"A.Obligado", Box, u"N"},
    {u"chklbl6Si", u"A.Establecimientos", Box, u"S"},
    {u"chklbl6No", u"A.Establecimientos", Box, u"N"},
    {u"chklbl4Si", u"A.Aplicacion", Box, u"S"},
    {u"chkOpcion", u"A.OpcionApl", Box, u"O"},
    {u"chkRevocacion", u"A.OpcionApl", Box, u"R"},
    {u"numPorcentaje", u"A.PORCENTAJE", Num},
};

constexpr FilaMando Participe[] = {
    {u"txtDNI", u"PA.DNI"},
    {u"txtNombre", u"PA.NOMBRE"},
    {u"txtSiglas", u"PA.SiglasDom"},
    {u"txtDescripcion", u"PA.DESCRIPCIONVIA"},
    {u"txtDomicilio", u"PA.NombreVia"},
    {u"txtNumero", u"PA.Numero", Num},
    {u"txtLetra", u"PA.Letra"},
    {u"txtEscalera", u"PA.Escalera"},
    {u"txtPiso", u"PA.Piso"},
    {u"txtMano", u"PA.Mano"},
    {u"txtCodProvincia", u"PA.CodigoProvincia", Num},
    {u"txtProvincia", u"PA.NombreProvincia"},
    {u"txtCodigoPostal", u"PA.CodPostal", Num},
    {u"txtCodMunicipio", u"PA.CodMun", Num},
    {u"txtMunicipio", u"PA.NombMun"},
    {u"txtTelefono", u"PA.Telefono", Num},
    {u"txtPorcentaje", u"PA.PorcenPart", Forma::Decimal},
    {u"chkEDSimplificada1", u"PA.EdIRPF", Box, u"O"},
    {u"chkEDSimplificada2", u"PA.EdIRPF", Box, u"R"},
    {u"chkEDModulos1", u"PA.EqIRPF", Box, u"O"},
    {u"chkEDModulos2", u"PA.EqIRPF", Box, u"R"},
    {u"ChkRegSimplificada1", u"PA.SimplifIVA", Box, u"A"},
    {u"ChkRegSimplificada2", u"PA.SimplifIVA", Box, u"R"},
    {u"chkRegAgraria1", u"PA.Agric", Box, u"A"},
    {u"chkRegAgraria2", u"PA.Agric", Box, u"R"},
};

using Mandos = QList<Mando>;

Mandos mandos(std::span<const FilaMando> filas, const QString& sufijo = {}) {
    Mandos lista;
    for (const auto& f : filas)
        lista.append({QString::fromUtf16(f.control) + sufijo,
                      QString::fromUtf16(f.propiedad) + sufijo, f.forma,
                      QString::fromUtf16(f.valor)});
    return lista;
}

Mandos domicilios() {
    Mandos lista = mandos(MarcasDomicilio);
    for (const auto* sufijo : {u"Fis", u"Soc", u"Act", u"Not"})
        lista += mandos(Domicilio, QString::fromUtf16(sufijo));
    for (auto& mando : lista)
        if (mando.control == QStringLiteral("numCodAct"))
            mando.control = QStringLiteral("numCodact");
    return lista;
}

Mandos preguntas(bool edicion2015) {
    Mandos lista;
    for (const auto& p : Preguntas) {
        if (p.solo2014 && edicion2015) continue;
        const QString propiedad = QStringLiteral("5.") + QString::fromUtf16(p.propiedad);
        lista.append({QStringLiteral("chk%1").arg(p.si), propiedad, Box, QStringLiteral("S")});
        lista.append({QStringLiteral("chk%1").arg(p.si + 1), propiedad, Box, QStringLiteral("N")});
    }
    return lista;
}

Mandos estados() {
    Mandos lista = mandos(Sujetos);
    for (int n = 1; n <= 27; ++n) lista += mandos(Estado, QString::number(n));
    return lista;
}

QMap<QString, Mandos> todosLosMandos() {
    return {{QStringLiteral("FrmDatGen"), mandos(Generales)},
            {QStringLiteral("FrmApartado2"), domicilios()},
            {QStringLiteral("FrmApartado3"), mandos(Censo)},
            {QStringLiteral("FrmApartado3_2015"), mandos(Censo) + mandos(Censo2015)},
            {QStringLiteral("frmApartado4"), mandos(Solicitudes) + mandos(Solicitudes2014)},
            {QStringLiteral("frmApartado4_2015"), mandos(Solicitudes) + mandos(Solicitudes2015)},
            {QStringLiteral("frmApartado5"), preguntas(false)},
            {QStringLiteral("frmApartado5_2015"), preguntas(true)},
            {QStringLiteral("frmApartado6"), mandos(Cese)},
            {QStringLiteral("FrmApartado7"), estados()},
            {QStringLiteral("frmAnexoII"), mandos(NoResidentes)},
            {QStringLiteral("frmDatosParticipe"), mandos(Participe)}};
}

}  // namespace

const QList<Mando>& MandosDe(const QString& formulario) {
    static const QMap<QString, Mandos> todos = todosLosMandos();
    static const Mandos ninguno;
    const auto este = todos.find(formulario);
    return este == todos.end() ? ninguno : *este;
}

const Mando* MandoDe(const QString& formulario, const QString& control) {
    for (const auto& mando : MandosDe(formulario))
        if (mando.control == control) return &mando;
    return nullptr;
}

}  // namespace padral::pruebas
