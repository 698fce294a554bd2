// A record and its array, through the table of its members.

#include "core/record_table.h"

#include <gtest/gtest.h>

#include <array>

#include "support/print_text.h"

namespace padral {
namespace {

struct Parte {
    QString Calle;
    qint32 Numero = 0;
};

struct Registro {
    QString Texto;
    TextoFijo<3> Fijo;
    qint16 Corto = 0;
    qint32 Largo = 0;
    double Decimal = 0;
    bool Logico = false;
    Parte Sitio;
};

constexpr std::array<Columna<Registro>, 8> Columnas = {{
    columna<Registro, &Registro::Texto>(u"Texto"),
    columna<Registro, &Registro::Fijo>(u"Fijo"),
    columna<Registro, &Registro::Corto>(u"Corto"),
    columna<Registro, &Registro::Largo>(u"Largo"),
    columna<Registro, &Registro::Decimal>(u"Decimal"),
    columna<Registro, &Registro::Logico>(u"Logico"),
    columna<Registro, &Registro::Sitio, &Parte::Calle>(u"Calle"),
    columna<Registro, &Registro::Sitio, &Parte::Numero>(u"Numero"),
}};

const std::span<const Columna<Registro>> TablaPrueba{Columnas};

Fila llena() {
    return {QStringLiteral(" a "),
            QStringLiteral("XY "),
            7,
            20021231,
            12.5,
            1,
            QStringLiteral("MAYOR"),
            12};
}

TEST(TablaDeRegistro, IdaYVuelta) {
    Registro r;
    CargarDeFila(r, TablaPrueba, llena());
    EXPECT_EQ(r.Texto, QStringLiteral(" a "));
    EXPECT_EQ(r.Fijo.texto(), QStringLiteral("XY "));
    EXPECT_EQ(r.Corto, 7);
    EXPECT_EQ(r.Largo, 20021231);
    EXPECT_EQ(r.Decimal, 12.5);
    EXPECT_TRUE(r.Logico);
    EXPECT_EQ(r.Sitio.Calle, QStringLiteral("MAYOR"));
    EXPECT_EQ(r.Sitio.Numero, 12);
    EXPECT_EQ(FilaDe(r, TablaPrueba), llena());
}

TEST(TablaDeRegistro, VacioYBlancoSonDistintos) {
    Registro r;
    for (const QString& texto : {QStringLiteral(""), QStringLiteral(" ")}) {
        Fila fila = llena();
        fila[0] = texto;
        CargarDeFila(r, TablaPrueba, fila);
        EXPECT_EQ(r.Texto, texto);
        EXPECT_EQ(FilaDe(r, TablaPrueba).at(0).toString(), texto);
    }
}

void esperarVacio(const Registro& r) {
    EXPECT_TRUE(r.Texto.isEmpty());
    EXPECT_FALSE(r.Texto.isNull());
    EXPECT_EQ(r.Fijo.texto(), QStringLiteral("   "));
    EXPECT_EQ(r.Corto, 0);
    EXPECT_EQ(r.Largo, 0);
    EXPECT_EQ(r.Decimal, 0);
    EXPECT_FALSE(r.Logico);
    EXPECT_TRUE(r.Sitio.Calle.isEmpty());
    EXPECT_EQ(r.Sitio.Numero, 0);
}

TEST(TablaDeRegistro, LoQueFaltaSeLeeVacioSegunSuTipo) {
    Registro r;
    CargarDeFila(r, TablaPrueba, llena());
    CargarDeFila(r, TablaPrueba, Fila());
    esperarVacio(r);
    CargarDeFila(r, TablaPrueba, llena());
    CargarDeFila(r, TablaPrueba, Fila(8));
    esperarVacio(r);
}

}  // namespace
}  // namespace padral
