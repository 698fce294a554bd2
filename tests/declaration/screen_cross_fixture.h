#pragma once
// The general data screen over valid declarations, saved or printed under the rules across
// sections.

#include "declaration/cross_rules_fixture.h"
#include "declaration/screen_fixture.h"

namespace padral::pruebas {

/// An effective date that no rule works out.
inline constexpr qint32 OtraFecha = 19990101;
/// The two ways to save.
inline constexpr const char16_t* Salidas[] = {u"cmdAceptar", u"cmdImprimir"};

class CrucesEnPantalla : public PantallaGeneral {
protected:
    /// A valid declaration with a change to it, open with changes pending.
    void preparar(Base base, const char16_t* cambio = u"") {
        d.csde = 0;
        d.InicializarDeclaracion();
        generalesValidos(g);
        g.DNI.clear();
        static_cast<RespuestasApartado5&>(d.apartado5) = respuestas(u"");
        poner(d, TextosBase[static_cast<std::size_t>(base)]);
        if (g.MotivoCambio != 0) g.NombreAnterior = QStringLiteral("ANTERIOR");
        if (g.DNI.isEmpty()) {
            g.Causa2 = QStringLiteral("A");
            g.FechaConstitucion = 20150110;
        }
        if (d.NumParti > 0) repartir({50, 50});
        poner(d, cambio);
        estado.FechaVigor = OtraFecha;
        estado.ModificacionesPendientes = true;
        abrirRegistro();
    }
    /// Participants with these shares in the place of those that are there.
    void repartir(const std::vector<float>& partes) {
        d.participantes.colParticipes.clear();
        while (d.NumParti > 0) d.DecrementarNumParti();
        for (const float parte : partes)
            sumarParticipe(d, QStringLiteral("12345678Z"), QStringLiteral("A"), parte);
    }
    /// Printing asks before it saves.
    void anunciar(const char16_t* salida, Respuesta respuesta = Respuesta::Aceptar) {
        if (q(salida) == QStringLiteral("cmdImprimir"))
            avisos.Espera({estado.Texto(538), estado.Texto(539), Icono::Informacion,
                           Botones::AceptarCancelar},
                          respuesta);
    }
    /// Refused with the messages that are expected; `focoDespues` u"" stays on the button.
    void rechaza(const char16_t* salida, const char16_t* focoDespues = u"") {
        const auto antes = secciones();
        sinCambios([&] { pulsar(salida); });
        avisos.Verificar();
        EXPECT_EQ(secciones(), antes);
        EXPECT_EQ(foco(), q(focoDespues).isEmpty() ? q(salida) : q(focoDespues));
        EXPECT_EQ(pantallas.Tomar(), QStringList());
        EXPECT_EQ(declaracionesGuardadas(), guardadas_);
        EXPECT_FALSE(pantallas.EnEspera());
    }
    /// Saved, with the messages that are expected and no other one.
    void guarda(const char16_t* salida) {
        pulsar(salida);
        avisos.Verificar();
        sale(salida);
        EXPECT_EQ(declaracionesGuardadas(), ++guardadas_);
        EXPECT_FALSE(pantallas.EnEspera());
    }
    void sale(const char16_t* salida) {
        if (q(salida) == QStringLiteral("cmdAceptar"))
            esperaCerrada();
        else
            EXPECT_EQ(pantallas.Tomar(), mostrar(u"FrmImOf"));
    }
    std::vector<Fila> secciones() const {
        std::vector<Fila> filas;
        for (const auto apartado : SeccionesConRegistro) filas.push_back(filaDe(d, apartado));
        return filas;
    }

    int guardadas_ = 0;
};

}  // namespace padral::pruebas
