#pragma once
// The screen of section 5 over one open declaration, and what its rows are.

#include <QGroupBox>
#include <set>

#include "location/screen_driver.h"
#include "sections/tax/screen/frm_apartado5.h"

namespace padral::pruebas {

using R5 = RespuestasApartado5;
constexpr auto Antigua5 = Edicion::Hasta2014, Nueva5 = Edicion::Desde2015;

/// A question as the screen shows it.
struct Pregunta5 {
    const char16_t* etiqueta;
    int texto;
    const char16_t *si, *no;
    Letra R5::*respuesta;
    int casilla;
    const char16_t* panel = u"";
    bool soloAntigua = false;
};
inline void PrintTo(const Pregunta5& p, std::ostream* salida) { *salida << s(p.etiqueta); }

constexpr auto EnAfirmativo = u"FrmAfirmativo", EnNegativo = u"FrmNegativo";

inline constexpr Pregunta5 Preguntas5[] = {
    {u"lbl1", 212, u"chk1", u"chk2", &R5::GRANEMPRESA, 89},
    {u"lbl2", 210, u"chk3", u"chk4", &R5::SOCIEDADES, 90},
    {u"lbl3", 756, u"chk5", u"chk6", &R5::ADMINISTRACIONES, 163},
    {u"lbl4", 209, u"chk7", u"chk8", &R5::EXENTASOCI, 91},
    {u"lbl5", 757, u"chk9", u"chk10", &R5::ART117, 164},
    {u"lbl6", 758, u"chk11", u"chk12", &R5::COOPERATIVA, 165},
    {u"lbl7", 759, u"chk13", u"chk14", &R5::CONSOLIDACION, 166},
    {u"lbl8", 760, u"chk15", u"chk16", &R5::DOMINANTE, 167},
    {u"lbl9", 208, u"chk17", u"chk18", &R5::SATISRENDTRAB, 93},
    {u"lbl10", 207, u"chk19", u"chk20", &R5::SATISRENDARREN, 94},
    {u"lbl12", 205, u"chk21", u"chk22", &R5::IRPFDIRECTA, 98},
    {u"lbl13", 204, u"chk23", u"chk24", &R5::IRPFOBJETIVA, 99, u"", true},
    {u"lbl14", 203, u"chk25", u"chk26", &R5::IRPFDIRECTSIMPLIF, 100},
    {u"lbl15", 202, u"chk27", u"chk28", &R5::IVA, 102},
    {u"lbl17", 196, u"chk29", u"chk30", &R5::GENERAL, 103, EnAfirmativo},
    {u"lbl18", 190, u"chk31", u"chk32", &R5::RECARGO, 104, EnAfirmativo},
    {u"lbl19", 197, u"chk33", u"chk34", &R5::AGENCIASOPERACION, 105, EnAfirmativo},
    {u"lbl20", 198, u"chk35", u"chk36", &R5::AGENCIASGLOBAL, 106, EnAfirmativo, true},
    {u"lbl21", 199, u"chk37", u"chk38", &R5::BIENESUSADOS, 107, EnAfirmativo},
    {u"lbl22", 200, u"chk39", u"chk40", &R5::BIENESMARGEN, 108, EnAfirmativo},
    {u"lbl23", 191, u"chk41", u"chk42", &R5::Agric, 109, EnAfirmativo},
    {u"lbl24", 201, u"chk43", u"chk44", &R5::SIMPLIF, 110, EnAfirmativo},
    {u"lbl25", 761, u"chk45", u"chk46", &R5::OPEXSINDCHO, 168, EnAfirmativo},
    {u"lblIvacaja", 870, u"chk55", u"chk56", &R5::IVACAJA, 172, EnAfirmativo},
    {u"lbl27", 190, u"chk47", u"chk48", &R5::NORECARGO, 112, EnNegativo},
    {u"lbl28", 191, u"chk49", u"chk50", &R5::NOAGRIC, 113, EnNegativo},
    {u"lbl29", 192, u"chk51", u"chk52", &R5::NOEXENTAS, 114, EnNegativo},
    {u"lbl30", 193, u"chk53", u"chk54", &R5::NOCONCIERTO, 115, EnNegativo},
};

class PantallaApartado5 : public ConPantalla {
protected:
    /// Opens an edition; without a date of its own the declaration gets one before any exception.
    void abrir(Edicion edicion = Antigua5) {
        if (g.FECHAVIGOR == 0) g.FECHAVIGOR = edicion == Nueva5 ? 20150101 : 20131231;
        edicion_ = edicion;
        ConPantalla::abrir(std::make_unique<frmApartado5>(contexto(), d, edicion));
    }
    void abrir(Edicion edicion, qint32 fechaVigor) {
        g.FECHAVIGOR = fechaVigor;
        abrir(edicion);
    }
    /// All answers "N" but for one: a record that breaks no rule, last accepted as it is.
    void valida() {
        g.Apartado5 = g.Apartado6 = q(u"X");
        poner(u"N");
        r.GRANEMPRESA = q(u"S");
        r.GuardarDatosAuxiliares();
    }
    /// The same answer to every question.
    void poner(const char16_t* valor) {
        for (const auto& p : Preguntas5) r.*p.respuesta = q(valor);
    }
    /// The answer to the I.V.A. question that shows the panel of a question.
    void abrirPanelDe(const Pregunta5& p) {
        if (p.panel == q(EnAfirmativo)) r.IVA = q(u"S");
        if (p.panel == q(EnNegativo)) r.IVA = q(u"N");
    }
    bool sePregunta(const Pregunta5& p) const { return edicion_ == Antigua5 || !p.soloAntigua; }

    template <class T = QWidget>
    T* c(const char16_t* nombre) {
        return ConPantalla::c<T>(q(nombre));
    }
    bool hay(const char16_t* nombre) { return pantalla->findChild<QWidget*>(q(nombre)) != nullptr; }
    bool habilitado(const char16_t* nombre) { return c(nombre)->isEnabled(); }
    bool visible(const char16_t* nombre) { return c(nombre)->isVisible(); }
    bool marcada(const char16_t* nombre) { return c<QCheckBox>(nombre)->isChecked(); }
    QString rotulo(const char16_t* nombre) { return c<QCheckBox>(nombre)->text(); }
    void pulsar(const char16_t* nombre) { ConPantalla::pulsar(q(nombre)); }
    void enfocar(const char16_t* nombre) { ConPantalla::enfocar(q(nombre)); }

    const R5& respuestas() const { return r; }
    /// What the auxiliary copy holds.
    DatosApartado5 auxiliar() const {
        cApartado5 copia = r;
        copia.RecuperarDatosAuxiliares();
        return copia;
    }
    QStringList salida(const char16_t* destino) {
        return {q(u"Mostrar ") + q(destino), q(u"Descargar ") + pantalla->objectName()};
    }

    cApartado5& r{d.apartado5};

private:
    Edicion edicion_ = Antigua5;
};

}  // namespace padral::pruebas
