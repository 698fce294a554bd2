// A company that changes its name, moves and trades abroad.

#include "app/tour/visit.h"

namespace padral {

void Visita::declararEmpresa() {
    nueva();
    foto(QStringLiteral("04-general-data-new"));
    identificarEmpresa();
    guia_->ElegirPestana(QStringLiteral("Pestaña"), 0);
    pulsar({"chkApartado2", "chkApartado3", "chkApartado4", "chkApartado5", "chkApartado7"});
    foto(QStringLiteral("07-general-data-filled"));
    declararDomicilios();
    declararDatos();
    declararSolicitudes();
    declararSituacion();
    declararIntracomunitarias();
    pulsar({"cmdAceptar"});
}

void Visita::identificarEmpresa() {
    identificar(QStringLiteral("A12345674"), QStringLiteral("Talleres Ibaialde, S.A."),
                QStringLiteral("2026/0417"));
    pulsar({"chkDeclaracionModificacion"});
    guia_->Escribir(QStringLiteral("mskFechaModificacion"),
                    fecha(QStringLiteral("02"), QStringLiteral("11"), QStringLiteral("2026")));
    pulsar({"chkPorDefinitivo"});
    guia_->Escribir(QStringLiteral("mskFechaInscrip"),
                    fecha(QStringLiteral("15"), QStringLiteral("10"), QStringLiteral("2026")));
    guia_->ElegirPestana(QStringLiteral("Pestaña"), 1);
    guia_->ElegirEnCombo(QStringLiteral("cmbMotivoCambio"), QStringLiteral("20"));
    guia_->Escribir(QStringLiteral("txtNombreAnterior"), QStringLiteral("Talleres Mendi, S.A."));
    foto(QStringLiteral("05-change-of-identity"));
    guia_->ResponderSiguiente(0, idioma_ + QStringLiteral("-06-rule"));
    pulsar({"cmdAceptar"});
    escribir({{"txtDNIRepresentante", u"12345678Z"},
              {"txtNombreRepresentante", u"Agirre Soto, Miren"},
              {"txtFirmaEnCalidadDe", u"Administradora"}});
}

void Visita::declararDomicilios() {
    pulsar({"cmdApartado2"});
    escribir({{"txtSigDomFis", u"CL"},
              {"txtDomFis", u"Errota Zaharra"},
              {"numNumFis", u"12"},
              {"txtPisFis", u"3"},
              {"txtManFis", u"B"},
              {"numCodProvFis", u"20"},
              {"numCodFis", u"20500"},
              {"numCodMunFis", u"1"},
              {"numTelFis", u"943112233"}});
    pulsar({"chkDSocElMismo"});
    escribir({{"txtSigDomAct", u"PG"}, {"txtDomAct", u"Ibaialde"}});
    pulsar({"cmdLstProvAct"});
    foto(QStringLiteral("08-provinces"));
    guia_->Tecla(Qt::Key_Escape);
    escribir({{"numCodProvAct", u"1"}, {"numCodact", u"01005"}, {"txtMunAct", u"Vitoria"}});
    foto(QStringLiteral("09-section2"));
    pulsar({"cmdApartadoSiguiente"});
}

void Visita::declararDatos() {
    pulsar({"optResidente(0)"});
    escribir({{"txtDescripcionActividad", u"1.6912"}, {"txtAnagrama", u"Ibaialde"}});
    // A company's letter ends its legal form: this is the first of the list.
    guia_->ElegirEnCombo(QStringLiteral("cmbDescFormaJuridica"), QStringLiteral("S"));
    guia_->Escribir(QStringLiteral("mskFechaCierre"), QStringLiteral("3112"));
    pulsar(
        {"chkEuskera", "chkElectronico", "chkCorreoAlta", "chkTelMovilAlta", "chkConsentimiento"});
    escribir({{"txtDirCorreo", u"tailerra@ibaialde.example"}, {"numMovil", u"600112233"}});
    foto(QStringLiteral("10-section3"));
    pulsar({"cmdSiguiente"});
}

void Visita::declararSolicitudes() {
    pulsar({"ChkEX1", "ChkEXIntr1", "ChkBI1", "ChkSO1"});
    escribir({{"txtNIF", u"E12345674"}, {"txtNombre", u"Lasa anaiak"}});
    foto(QStringLiteral("11-section4"));
    pulsar({"cmdSiguiente"});
}

void Visita::declararSituacion() {
    // Yes to corporate tax, to the withholdings of wages, to the VAT with its general regime and to
    // the margin of second-hand goods, as the requests ask for; no to the rest.
    responder({2, 3, 6, 8, 10, 12, 14, 16, 17, 20, 22, 26, 27, 29, 32, 34, 38, 39, 42, 44, 46, 56});
    foto(QStringLiteral("12-section5"));
    pulsar({"cmdSiguiente"});
}

void Visita::declararIntracomunitarias() {
    pulsar({"chkLimSupPais1", "chkDestPais1", "chkLimInfPais25", "chkRevPais25", "chkLimSupPais11",
            "chkDestPais11", "chkMasLimEuros", "chkOpcion"});
    foto(QStringLiteral("13-section7"));
    pulsar({"cmdInicio"});
}

}  // namespace padral
