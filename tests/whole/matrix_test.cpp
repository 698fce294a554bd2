// Every type of declaration of every kind of person on both sides of the days on which screens and
// rules change: stored, opened again, looked at, printed, changed, deleted.

#include "differences.h"
#include "matrix_cases.h"
#include "whole_program.h"

namespace padral::pruebas {

namespace {

struct CasoDeMatriz {
    Tipo tipo;
    Persona persona;
};
void PrintTo(const CasoDeMatriz& caso, std::ostream* salida) {
    *salida << caso.tipo.nombre << " " << caso.persona.nombre;
}

class Matriz : public testing::TestWithParam<CasoDeMatriz> {
protected:
    void viajar(const Dia& dia) {
        Redaccion redaccion(GetParam().tipo, GetParam().persona, dia.fecha);
        const Guion guion = redaccion.Escribir();
        SCOPED_TRACE(guion.fichero.toStdString());
        ASSERT_TRUE(p_.Nueva());
        ASSERT_TRUE(p_.interprete().Jugar(guion, guion.entrada));
        const auto filas = p_.Filas();
        ASSERT_EQ(Declaraciones(filas).size(), 1);
        const qint64 clave = Declaraciones(filas).first();
        const auto contenido = Contenido(De(filas, clave));
        const auto debido = redaccion.Guardado();
        for (const QString& nombre : debido.keys())
            EXPECT_EQ(contenido.value(nombre), debido[nombre]) << nombre.toStdString();
        ASSERT_TRUE(p_.Abrir(clave));
        ASSERT_TRUE(!dia.mirar || p_.interprete().Recorrer(guion));
        if (dia.imprimir) imprimir(redaccion.Paginas());
        EXPECT_EQ(p_.Filas(), filas) << "looking and printing write nothing";
        ASSERT_TRUE(p_.interprete().Jugar(guion, guion.cambio));
        const QMap<QString, QString> cambio{
            {QStringLiteral("TDeclaraciones NumeroArchivo"), QStringLiteral("M/2")}};
        EXPECT_EQ(Diferencias(cambio, Cambios(De(filas, clave), De(p_.Filas(), clave))),
                  QStringList());
        if (dia.copiar) copiar(clave);
        ASSERT_TRUE(p_.Borrar(clave));
        EXPECT_EQ(p_.Filas(), SinLasDe(filas, clave));
    }
    /// The copy holds the same; without it the store is as it was.
    void copiar(qint64 clave) {
        const auto antes = p_.Filas();
        ASSERT_TRUE(p_.Copiar(clave) && p_.Pulsar({u"cmdAceptar"}));
        const auto todas = p_.Filas();
        ASSERT_EQ(Declaraciones(todas).size(), 2);
        const qint64 copia = Declaraciones(todas).last();
        EXPECT_EQ(Contenido(De(todas, copia)), Contenido(De(todas, clave)));
        ASSERT_TRUE(p_.Borrar(copia));
        EXPECT_EQ(p_.Filas(), antes);
    }
    void imprimir(int paginas) {
        const auto copias = p_.ImprimirBorrador();
        ASSERT_EQ(copias.size(), 1U);
        EXPECT_EQ(copias[0]->paginasTerminadas, paginas);
    }

    ProgramaEntero p_{QStringLiteral("C")};
};

TEST_P(Matriz, EnTodosSusDias) {
    for (const Dia& dia : Dias) {
        // Requests alone take effect on no day: theirs is that of the declaration, which the pages
        // ask for.
        if (GetParam().tipo.letra == 0 && !dia.imprimir) continue;
        p_.interprete().Olvidar();
        viajar(dia);
        if (HasFatalFailure()) return;
    }
}

std::vector<CasoDeMatriz> Casos() {
    std::vector<CasoDeMatriz> casos;
    for (const auto& tipo : Tipos)
        for (const auto& persona : Personas) casos.push_back({tipo, persona});
    return casos;
}

INSTANTIATE_TEST_SUITE_P(Todas, Matriz, testing::ValuesIn(Casos()), [](const auto& i) {
    return std::string(i.param.tipo.nombre) + "_" + i.param.persona.nombre;
});

}  // namespace

}  // namespace padral::pruebas
