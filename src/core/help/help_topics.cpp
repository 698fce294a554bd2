#include "core/help/help_topics.h"

#include <algorithm>

namespace padral {

namespace {

constexpr TemaFormulario Temas[] = {
    {u"MDIPadral", u"indice.htm", u"aurkibidea.htm"},
    {u"FrmDecLista", u"lista.htm", u"zerrenda.htm"},
    {u"FrmDatGen", u"datos_generales.htm", u"datu_orokorrak.htm"},
    {u"FrmApartado2", u"apartado2.htm", u"2_atala.htm"},
    {u"FrmApartado3", u"apartado3.htm", u"3_atala.htm"},
    {u"FrmApartado3_2015", u"apartado3.htm", u"3_atala.htm"},
    {u"frmApartado4", u"apartado4.htm", u"4_atala.htm"},
    {u"frmApartado4_2015", u"apartado4.htm", u"4_atala.htm"},
    {u"frmApartado5", u"apartado5.htm", u"5_atala.htm"},
    {u"frmApartado5_2015", u"apartado5.htm", u"5_atala.htm"},
    {u"frmApartado6", u"apartado6.htm", u"6_atala.htm"},
    {u"FrmApartado7", u"apartado7.htm", u"7_atala.htm"},
    {u"frmListaParticipes", u"participes.htm", u"partaideak.htm"},
    {u"frmDatosParticipe", u"participe.htm", u"partaidea.htm"},
    {u"frmAnexoII", u"anexo2.htm", u"2_eranskina.htm"},
    {u"FrmImOf", u"impresion.htm", u"inprimatzea.htm"},
    {u"FrmIdioma", u"idioma.htm", u"hizkuntza.htm"},
    {u"frmPreferencias", u"preferencias.htm", u"hobespenak.htm"},
    {u"FrmVersionCheck", u"version.htm", u"bertsioa.htm"},
    {u"FrmSinConexion", u"version.htm", u"bertsioa.htm"},
    {u"frmAbout", u"acerca.htm", u"honi_buruz.htm"},
};

const TemaFormulario* buscar(const QString& formulario) {
    const auto* tema = std::find_if(std::begin(Temas), std::end(Temas),
                                    [&](const auto& t) { return formulario == t.formulario; });
    return tema == std::end(Temas) ? nullptr : tema;
}

}  // namespace

std::span<const TemaFormulario> TemasAyuda() { return Temas; }

bool TieneTema(const QString& formulario) { return buscar(formulario) != nullptr; }

QString TemaDe(const EstadoCompartido& estado, const QString& formulario) {
    const auto* tema = buscar(formulario);
    if (!tema) return TemaInicial(estado);
    return estado.SegunIdioma(QString::fromUtf16(tema->castellano),
                              QString::fromUtf16(tema->euskera));
}

QString TemaInicial(const EstadoCompartido& estado) {
    return TemaDe(estado, QString::fromUtf16(Temas[0].formulario));
}

}  // namespace padral
