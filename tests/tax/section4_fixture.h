#pragma once
// The screen of section 4 over one open declaration, and its rows of boxes.

#include "location/screen_driver.h"
#include "sections/tax/screen/frm_apartado4.h"

namespace padral::pruebas {

inline constexpr Edicion Ediciones4[] = {Edicion::Hasta2014, Edicion::Desde2015};

struct CasillaEsperada {
    const char16_t* nombre;
    const char16_t* valor;
    const char16_t *castellano, *euskera;  ///< caption without the focus
};

struct FilaEsperada {
    const char* propiedad;
    Letra DatosApartado4::*miembro;
    const char16_t* etiqueta;
    std::vector<CasillaEsperada> casillas;
    bool hasta2014 = true, desde2015 = true;

    bool esta(Edicion edicion) const {
        return edicion == Edicion::Hasta2014 ? hasta2014 : desde2015;
    }
};
inline void PrintTo(const FilaEsperada& f, std::ostream* salida) { *salida << f.propiedad; }

inline FilaEsperada tresNumeros(const char* propiedad, Letra DatosApartado4::*miembro,
                                const char16_t* etiqueta,
                                std::array<std::array<const char16_t*, 3>, 3> filas) {
    FilaEsperada fila{propiedad, miembro, etiqueta, {}};
    for (const auto& [nombre, valor, numero] : filas)
        fila.casillas.push_back({nombre, valor, numero, numero});
    return fila;
}
inline FilaEsperada solo2014(FilaEsperada fila) {
    fila.desde2015 = false;
    return fila;
}
inline FilaEsperada solo2015(FilaEsperada fila) {
    fila.hasta2014 = false;
    return fila;
}

#define FILA(propiedad) #propiedad, &DatosApartado4::propiedad
// clang-format off
inline const std::vector<FilaEsperada> Filas4 = {
    solo2014(tresNumeros(FILA(IRPFOBJET), u"Label2",
        {{{u"ChkEO1", u"O", u"(57)"}, {u"ChkEO2", u"R", u"(58)"}, {u"ChkEO3", u"E", u"(59)"}}})),
    tresNumeros(FILA(IRPFDIRECT), u"Label3",
        {{{u"ChkED1", u"O", u"(60)"}, {u"ChkED2", u"R", u"(61)"}, {u"ChkED3", u"E", u"(62)"}}}),
    tresNumeros(FILA(IVACAJA), u"lblCaja",
        {{{u"ChkCaja1", u"O", u"(169)"}, {u"ChkCaja2", u"R", u"(170)"},
          {u"ChkCaja3", u"E", u"(171)"}}}),
    solo2015(tresNumeros(FILA(IVACUOADU), u"lblCuoAdu",
        {{{u"ChkCuoAdu1", u"O", u"(173)"}, {u"ChkCuoAdu2", u"R", u"(174)"},
          {u"ChkCuoAdu3", u"E", u"(175)"}}})),
    tresNumeros(FILA(IVAAGRIC), u"Label5",
        {{{u"ChkAG1", u"A", u"(66)"}, {u"ChkAG2", u"R", u"(67)"}, {u"ChkAG3", u"E", u"(68)"}}}),
    tresNumeros(FILA(IVASIMPLIF), u"Label6",
        {{{u"ChkSI1", u"A", u"(69)"}, {u"ChkSI2", u"R", u"(70)"}, {u"ChkSI3", u"E", u"(71)"}}}),
    {FILA(IVAEXPORT), u"Label7",
        {{u"ChkEX1", u"A", u" ALTA  (75)", u" ALTA  (75)"},
         {u"ChkEX2", u"B", u" BAJA  (76)", u" BAJA  (76)"}}},
    {FILA(IVAEXPORTINTRA), u"lblExpIntra",
        {{u"ChkEXIntr1", u"A", u" ALTA  (161)", u" ALTA  (161)"},
         {u"ChkEXIntr2", u"B", u" BAJA  (162)", u" BAJA  (162)"}}},
    solo2014({FILA(IVAAGENCIAS), u"Label8",
        {{u"ChkVI1", u"O", u"OPCIÓN  (77)", u"AUKERATZEA  (77)"},
         {u"ChkVI2", u"R", u"RENUNCIA  (78)", u"UKO EGITEA  (78)"}}}),
    {FILA(IVABIENES), u"Label9",
        {{u"ChkBI1", u"O", u"OPCIÓN  (80)", u"AUKERATZEA  (80)"},
         {u"ChkBI2", u"R", u"RENUNCIA  (81)", u"UKO EGITEA  (81)"}}},
    {FILA(IVASOCIO), u"Label10",
        {{u"ChkSO1", u"S", u"SI  (83)", u"BAI  (83)"},
         {u"ChkSO2", u"N", u"NO  (84)", u"EZ  (84)"}}},
    {FILA(SONF), u"lblSONF",
        {{u"ChkSONF1", u"O", u"OPCIÓN", u"AUKERATZEA"},
         {u"ChkSONF2", u"R", u"RENUNCIA", u"UKO EGITEA"}}},
};
// clang-format on
#undef FILA

class PantallaApartado4 : public ConPantalla {
protected:
    void SetUp() override {
        ConPantalla::SetUp();
        g.Apartado4 = g.Apartado5 = q(u"X");
        g.FECHAVIGOR = 20131231;
    }

    /// Opens an edition in a declaration of its time.
    void abrir(Edicion edicion = Edicion::Desde2015) {
        if (edicion == Edicion::Desde2015 && g.FECHAVIGOR < 20150101) g.FECHAVIGOR = 20150101;
        ConPantalla::abrir(std::make_unique<frmApartado4>(contexto(), d, edicion));
    }
    void abrirAntigua(qint32 fechaVigor = 20131231) {
        g.FECHAVIGOR = fechaVigor;
        abrir(Edicion::Hasta2014);
    }
    /// A record that breaks no rule, accepted as it is.
    void valida() {
        r.LIMPIARDATOS();
        r.IVAEXPORT = q(u"A");
        r.GuardarDatosAuxiliares();
    }
    void socio(const char16_t* nif = u"E12345674", const char16_t* nombre = u"COFRADIA") {
        r.IVASOCIO = q(u"S");
        r.NIF = q(nif);
        r.NOMBRE = q(nombre);
        r.GuardarDatosAuxiliares();
    }

    template <class T = QWidget>
    T* c(const char16_t* nombre) {
        return ConPantalla::c<T>(q(nombre));
    }
    QString texto(const char16_t* nombre) { return ConPantalla::texto(q(nombre)); }
    QString rotulo(const char16_t* nombre) { return c(nombre)->property("text").toString(); }
    bool habilitado(const char16_t* nombre) { return c(nombre)->isEnabled(); }
    bool bloqueado(const char16_t* nombre) { return ConPantalla::bloqueado(q(nombre)); }
    bool marcada(const char16_t* nombre) { return ConPantalla::marcada(q(nombre)); }
    bool hay(const char16_t* nombre) { return pantalla->findChild<QWidget*>(q(nombre)); }
    void pulsar(const char16_t* nombre) { ConPantalla::pulsar(q(nombre)); }
    void enfocar(const char16_t* nombre) { ConPantalla::enfocar(q(nombre)); }
    void escribir(const char16_t* nombre, const char16_t* valor) {
        ConPantalla::escribir(q(nombre), q(valor));
    }
    /// Types and leaves with Tab.
    void rellenar(const char16_t* nombre, const char16_t* valor) {
        ConPantalla::rellenar(q(nombre), q(valor));
    }
    /// Only `nombre` is ticked in its row; u"" none.
    void esperaMarcada(const FilaEsperada& fila, const char16_t* nombre) {
        for (const auto& casilla : fila.casillas)
            EXPECT_EQ(marcada(casilla.nombre), q(casilla.nombre) == q(nombre)) << s(casilla.nombre);
    }
    bool cambiado() { return std::exchange(r.MODIFAPARTADO4, false); }
    const DatosApartado4& datos() const { return r; }
    /// Nothing of the record changes by what `hacer` does.
    void sinCambios(const std::function<void()>& hacer) {
        const DatosApartado4 antes = r;
        hacer();
        EXPECT_TRUE(datos() == antes);
    }
    QStringList salida(const char16_t* destino) {
        return {q(u"Mostrar ") + q(destino), q(u"Descargar ") + pantalla->objectName()};
    }
    /// Where Tab goes, from the first box round to it again.
    QStringList paradas() {
        QStringList nombres;
        pantalla->FocoInicial()->setFocus(Qt::TabFocusReason);
        for (QString nombre = foco(); !nombres.contains(nombre); nombre = foco()) {
            nombres << nombre;
            tecla(Qt::Key_Tab);
        }
        return nombres;
    }

    cApartado4& r{d.apartado4};
};

}  // namespace padral::pruebas
