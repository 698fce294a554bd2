#include "sections/tax/section5.h"

namespace padral {

namespace {

using R5 = RespuestasApartado5;

constexpr Columna<R5> ColumnasApartado5[] = {
    columna<R5, &R5::GRANEMPRESA>(u"GRANEMPRESA"),
    columna<R5, &R5::SOCIEDADES>(u"SOCIEDADES"),
    columna<R5, &R5::ADMINISTRACIONES>(u"ADMINISTRACIONES"),
    columna<R5, &R5::EXENTASOCI>(u"EXENTASOCI"),
    columna<R5, &R5::ART117>(u"ART117"),
    columna<R5, &R5::COOPERATIVA>(u"COOPERATIVA"),
    columna<R5, &R5::CONSOLIDACION>(u"CONSOLIDACION"),
    columna<R5, &R5::DOMINANTE>(u"DOMINANTE"),
    columna<R5, &R5::SATISRENDTRAB>(u"SATISRENDTRAB"),
    columna<R5, &R5::SATISRENDARREN>(u"SATISRENDARREN"),
    columna<R5, &R5::IRPFDIRECTA>(u"IRPFDIRECTA"),
    columna<R5, &R5::IRPFOBJETIVA>(u"IRPFOBJETIVA"),
    columna<R5, &R5::IRPFDIRECTSIMPLIF>(u"IRPFDIRECTSIMPLIF"),
    columna<R5, &R5::IVA>(u"IVA"),
    columna<R5, &R5::GENERAL>(u"GENERAL"),
    columna<R5, &R5::RECARGO>(u"RECARGO"),
    columna<R5, &R5::AGENCIASOPERACION>(u"AGENCIASOPERACION"),
    columna<R5, &R5::AGENCIASGLOBAL>(u"AGENCIASGLOBAL"),
    columna<R5, &R5::BIENESUSADOS>(u"BIENESUSADOS"),
    columna<R5, &R5::BIENESMARGEN>(u"BIENESMARGEN"),
    columna<R5, &R5::Agric>(u"Agric"),
    columna<R5, &R5::SIMPLIF>(u"SIMPLIF"),
    columna<R5, &R5::OPEXSINDCHO>(u"OPEXSINDCHO"),
    columna<R5, &R5::NORECARGO>(u"NORECARGO"),
    columna<R5, &R5::NOAGRIC>(u"NOAGRIC"),
    columna<R5, &R5::NOEXENTAS>(u"NOEXENTAS"),
    columna<R5, &R5::NOCONCIERTO>(u"NOCONCIERTO"),
    columna<R5, &R5::IVACAJA>(u"IVACAJA"),
};

}  // namespace

std::span<const Columna<RespuestasApartado5>> TablaApartado5() { return ColumnasApartado5; }

void cApartado5::InicializarApartado5() {
    static_cast<RespuestasApartado5&>(*this) = {};
    static_cast<RespuestasApartado5&>(auxiliar_) = {};
}

void cApartado5::ResetForNewDeclaration() {
    InicializarApartado5();
    APARTADO5LLENO = MODIFAPARTADO5 = false;
    GuardarDatosAuxiliares();
}

void cApartado5::BlancoANo() {
    for (const auto& c : TablaApartado5())
        if (c.leer(*this).toString().trimmed().isEmpty()) c.escribir(*this, QStringLiteral("N"));
}

void cApartado5::NoABlanco(Fila& fila) {
    for (QVariant& valor : fila)
        if (valor.toString().trimmed() == QStringLiteral("N")) valor = QStringLiteral(" ");
}

void cApartado5::CargarDatos(const Fila& fila) {
    CargarDeFila<RespuestasApartado5>(*this, TablaApartado5(), fila);
    APARTADO5LLENO = Marcado(generales_.Apartado5);
    if (APARTADO5LLENO) BlancoANo();
    GuardarDatosAuxiliares();
}

Fila cApartado5::ObtenerDatos() const {
    Fila fila = FilaDe<RespuestasApartado5>(*this, TablaApartado5());
    if (Marcado(generales_.Apartado5)) NoABlanco(fila);
    return fila;
}

}  // namespace padral
