// A person who starts, one who ends, a community and a non-resident.

#include <QCheckBox>

#include "app/tour/visit.h"

namespace padral {

void Visita::declararPersona() {
    nueva();
    identificar(QStringLiteral("X1234567L"), QStringLiteral("Ñuñez Zubia, Ane"),
                QStringLiteral("2026/0418"));
    pulsar({"chkDeclaracionInicio", "chkElMismo"});
    guia_->Tecla(Qt::Key_F1);
    foto(QStringLiteral("14-help"));
    guia_->Tecla(Qt::Key_Escape);
    guia_->TomarVentana();
    declararActividad();
    pulsar({"cmdAceptar"});
}

// Who starts tells the activity and answers section 5, which the start has marked.
void Visita::declararActividad() {
    pulsar({"chkApartado3", "cmdApartado3", "optResidente(0)"});
    guia_->Escribir(QStringLiteral("mskFechaInicio"),
                    fecha(QStringLiteral("02"), QStringLiteral("11"), QStringLiteral("2026")));
    guia_->Escribir(QStringLiteral("txtDescripcionActividad"), QStringLiteral("1.6912"));
    pulsar({"cmdSiguiente"});
    // Yes to direct estimation and to the VAT with its general regime; no to the rest.
    responder({2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 21, 26, 27, 29, 32, 34, 38, 40, 42, 44, 46, 56});
    pulsar({"cmdInicio"});
}

// With an older effective date the sections open in their edition before 2015.
void Visita::mirarEdicionesAnteriores() {
    nueva();
    identificar(QStringLiteral("12345678Z"), QStringLiteral("Lasa Etxe, Jon"),
                QStringLiteral("2014/0001"));
    pulsar({"chkDeclaracionModificacion", "chkElMismo"});
    guia_->Escribir(QStringLiteral("mskFechaModificacion"),
                    fecha(QStringLiteral("02"), QStringLiteral("11"), QStringLiteral("2013")));
    for (const int apartado : {3, 4, 5}) {
        pulsar({QStringLiteral("chkApartado%1").arg(apartado).toLatin1().constData(),
                QStringLiteral("cmdApartado%1").arg(apartado).toLatin1().constData()});
        if (apartado == 5) pulsar({"chk28"});
        foto(QStringLiteral("%1-section%2-2014").arg(apartado + 12).arg(apartado));
        while (!programa_->ventana().findChild<QWidget*>(QStringLiteral("FrmDatGen")))
            pulsar({"cmdCancelar"});
    }
    pulsar({"cmdCancelar"});
}

void Visita::declararCese() {
    nueva();
    identificar(QStringLiteral("12345678Z"), QStringLiteral("Lasa Etxe, Jon"),
                QStringLiteral("2026/0419"));
    pulsar({"chkDeclaracionCese", "chkElMismo", "cmdApartado6"});
    guia_->Escribir(QStringLiteral("txtFecha"),
                    fecha(QStringLiteral("31"), QStringLiteral("10"), QStringLiteral("2026")));
    guia_->ElegirEnCombo(QStringLiteral("cmbDescripcion"), idioma_ == QStringLiteral("es")
                                                               ? QStringLiteral("OTRAS")
                                                               : QStringLiteral("BESTE"));
    guia_->Escribir(QStringLiteral("txtSinEpigrafe"), QStringLiteral("JUBILACION"));
    foto(QStringLiteral("18-section6"));
    pulsar({"cmdInicio", "cmdAceptar"});
}

void Visita::participar(const std::vector<std::pair<const char*, const char16_t*>>& campos) {
    escribir(campos);
    pulsar({"cmdAceptar"});
}

void Visita::declararComunidad() {
    nueva();
    identificar(QStringLiteral("E12345674"), QStringLiteral("Aldabe anaiak, C.B."),
                QStringLiteral("2026/0420"));
    pulsar({"chkDeclaracionModificacion"});
    guia_->Escribir(QStringLiteral("mskFechaModificacion"),
                    fecha(QStringLiteral("02"), QStringLiteral("11"), QStringLiteral("2026")));
    escribir({{"txtDNIRepresentante", u"12345678Z"},
              {"txtNombreRepresentante", u"Aldabe Ruiz, Jon"},
              {"txtFirmaEnCalidadDe", u"Partaidea"}});
    pulsar({"chkApartado8", "cmdAnexo"});
    participar({{"txtDNI", u"12345678Z"},
                {"txtNombre", u"Aldabe Ruiz, Jon"},
                {"txtSiglas", u"CL"},
                {"txtDomicilio", u"Errota Zaharra"},
                {"txtNumero", u"12"},
                {"txtCodProvincia", u"20"},
                {"txtCodigoPostal", u"20500"},
                {"txtCodMunicipio", u"1"},
                {"txtPorcentaje", u"60"}});
    pulsar({"chkEDSimplificada1", "ChkRegSimplificada2"});
    foto(QStringLiteral("19-participant"));
    pulsar({"cmdAceptar", "cmdOtroParticipe"});
    participar({{"txtDNI", u"X1234567L"},
                {"txtNombre", u"Aldabe Ruiz, Ane"},
                {"txtSiglas", u"PG"},
                {"txtDomicilio", u"Ibaialde"},
                {"txtCodProvincia", u"1"},
                {"txtCodigoPostal", u"01005"},
                {"txtMunicipio", u"Vitoria"},
                {"txtPorcentaje", u"40"}});
    pulsar({"cmdVolver"});
    foto(QStringLiteral("20-participants"));
    pulsar({"cmdBuscar"});
    foto(QStringLiteral("21-participants-search"));
    pulsar({"cmdTodos", "cmdInicio", "cmdAceptar"});
}

void Visita::declararNoResidente() {
    nueva();
    identificar(QStringLiteral("N1234567D"), QStringLiteral("Nordwind GmbH"),
                QStringLiteral("2026/0421"));
    pulsar({"chkDeclaracionModificacion"});
    guia_->Escribir(QStringLiteral("mskFechaModificacion"),
                    fecha(QStringLiteral("02"), QStringLiteral("11"), QStringLiteral("2026")));
    escribir({{"txtDNIRepresentante", u"12345678Z"},
              {"txtNombreRepresentante", u"Agirre Soto, Miren"},
              {"txtFirmaEnCalidadDe", u"Ordezkaria"}});
    pulsar({"chkAnexoII", "cmdAnexoII"});
    escribir({{"txtDomicilio", u"Hafenstrasse 7"},
              {"txtNombreMunicipio", u"Hamburg"},
              {"txtNacionalidad", u"Alemania"},
              {"txtFormaJuridica", u"GmbH"}});
    pulsar({"chklbl1Si", "chkOcasional", "chklbl2Si"});
    escribir({{"txtNIF", u"12345678Z"},
              {"txtNombre", u"Agirre Soto, Miren"},
              {"txtNacionalidadRep", u"Kelmaria"},
              {"txtRepDomicilio", u"Errota Zaharra 12"},
              {"numCodigoProvincia", u"20"},
              {"numCodigoMunicipio", u"1"}});
    pulsar({"chklbl5Si", "chklbl6No", "chklbl4Si"});
    guia_->Escribir(QStringLiteral("numPorcentaje"), QStringLiteral("45"));
    foto(QStringLiteral("22-annex2"));
    pulsar({"cmdInicio", "cmdAceptar"});
}

}  // namespace padral
