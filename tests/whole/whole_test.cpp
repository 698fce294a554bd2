// Whole declarations on their road: entered, stored, opened again, looked at, printed, changed,
// copied, deleted.

#include <QDir>
#include <QFile>

#include "differences.h"
#include "printed_boxes.h"
#include "printing/job.h"
#include "support/printed_records.h"
#include "whole_program.h"

namespace padral::pruebas {

namespace {

const QString CarpetaDeGuiones = QStringLiteral(PADRAL_SOURCE_DIR "/tests/whole/data");

struct Viaje {
    QString guion, idioma;
};

void PrintTo(const Viaje& viaje, std::ostream* salida) {
    *salida << viaje.guion.toStdString() << " " << viaje.idioma.toStdString();
}

/// Each file in each of its languages.
std::vector<Viaje> Viajes() {
    std::vector<Viaje> viajes;
    for (const QString& fichero : QDir(CarpetaDeGuiones).entryList({QStringLiteral("*.txt")}))
        for (const QString& idioma : LeerGuion(CarpetaDeGuiones + u'/' + fichero).idiomas)
            viajes.push_back({fichero, idioma});
    return viajes;
}

class DeclaracionEntera : public testing::TestWithParam<Viaje> {
protected:
    bool euskera() const { return GetParam().idioma == QStringLiteral("E"); }
    void entrar();
    void guardada();
    void abrirYMirar();
    void imprimir();
    void cambiar();
    void copiar();
    void borrar();

    void hoja(const test::Documento& copia, int pagina, const QString& nombre);
    QStringList formularioEnBlanco(const QString& clase, int filas);
    void anotarReal(const QString& que, const QMap<QString, QString>& valores) const;

    Guion guion_ = LeerGuion(CarpetaDeGuiones + u'/' + GetParam().guion);
    ProgramaEntero p_{GetParam().idioma};
    qint64 clave_ = 0;
    std::vector<FilaGuardada> filas_;  ///< of the declaration, as last seen
};

/// With PADRAL_WHOLE_ACTUAL, a folder, what came out is left there to be read beside the file.
void DeclaracionEntera::anotarReal(const QString& que,
                                   const QMap<QString, QString>& valores) const {
    const QString carpeta = qEnvironmentVariable("PADRAL_WHOLE_ACTUAL");
    if (carpeta.isEmpty()) return;
    QFile fichero(carpeta + u'/' + GetParam().guion + u'.' + GetParam().idioma);
    if (!fichero.open(QIODevice::Append)) return;
    fichero.write((QStringLiteral("== ") + que + u'\n').toUtf8());
    for (const QString& nombre : valores.keys())
        fichero.write((nombre + QStringLiteral(" = ") + valores[nombre] + u'\n').toUtf8());
}

void DeclaracionEntera::entrar() {
    ASSERT_TRUE(p_.Nueva());
    ASSERT_TRUE(p_.interprete().Jugar(guion_, guion_.entrada));
    EXPECT_FALSE(p_.HayPantalla()) << "the declaration is still open";
}

void DeclaracionEntera::guardada() {
    const auto todas = p_.Filas();
    ASSERT_EQ(Declaraciones(todas).size(), 1);
    clave_ = Declaraciones(todas).first();
    filas_ = De(todas, clave_);
    anotarReal(QStringLiteral("rows"), Contenido(filas_));
    EXPECT_EQ(Diferencias(Contenido(guion_.filas, euskera()), Contenido(filas_)), QStringList());
}

void DeclaracionEntera::abrirYMirar() {
    ASSERT_TRUE(p_.Abrir(clave_));
    ASSERT_TRUE(p_.interprete().Recorrer(guion_));
}

void DeclaracionEntera::imprimir() {
    const auto copias = p_.Imprimir();
    const QStringList nombres{QStringLiteral("AD"), QStringLiteral("IT"), QStringLiteral("BO")};
    ASSERT_EQ(copias.size(), 3U);
    for (std::size_t i = 0; i < copias.size(); ++i) {
        const QString copia = nombres.at(static_cast<int>(i));
        SCOPED_TRACE("copy " + copia.toStdString());
        EXPECT_TRUE(copias[i]->titulo.endsWith(u'-' + copia)) << copias[i]->titulo.toStdString();
        EXPECT_TRUE(copias[i]->cerrado);
        const QStringList paginas = guion_.copias.value(copia);
        ASSERT_EQ(copias[i]->paginasTerminadas, paginas.size());
        for (int pagina = 0; pagina < paginas.size(); ++pagina)
            hoja(*copias[i], pagina + 1, paginas[pagina]);
    }
    EXPECT_EQ(De(p_.Filas(), clave_), filas_) << "printing writes nothing";
}

void DeclaracionEntera::hoja(const test::Documento& copia, int pagina, const QString& nombre) {
    SCOPED_TRACE("page " + nombre.toStdString());
    const QString clase = nombre.section(u'.', 0, 0);
    const auto escrita = std::find_if(guion_.hojas.begin(), guion_.hojas.end(),
                                      [&](const auto& h) { return h.nombre == nombre; });
    ASSERT_NE(escrita, guion_.hojas.end()) << "the file does not tell it";
    QMap<QString, QString> esperadas = escrita->casillas;
    for (QString& valor : esperadas) valor = EnIdioma(valor, euskera());
    const QString rotulo = esperadas.take(QStringLiteral("caption"));
    const HojaImpresa real = LeerHoja(copia, pagina, clase);
    if (copia.titulo.endsWith(QStringLiteral("BO"))) anotarReal(nombre, real.casillas);
    EXPECT_EQ(Diferencias(esperadas, real.casillas), QStringList());
    EXPECT_TRUE(std::any_of(real.formulario.begin(), real.formulario.end(),
                            [&](const QString& texto) { return texto.startsWith(rotulo); }))
        << "no caption " << rotulo.toStdString();
    const int filas = static_cast<int>(std::count_if(
        esperadas.keyBegin(), esperadas.keyEnd(),
        [](const QString& casilla) { return casilla.endsWith(QStringLiteral(".NIF")); }));
    EXPECT_EQ(real.formulario, formularioEnBlanco(clase, filas)) << "beside the boxes";
    // Every page is stamped with its copy, but for Annex II.
    QStringList sellos{QStringLiteral("Administracion"), QStringLiteral("Interesado"),
                       QStringLiteral("Borrador")};
    sellos.removeIf([&](const QString& sello) { return !real.imagenes.contains(sello); });
    const QString suyo =
        copia.titulo.endsWith(QStringLiteral("AD"))   ? QStringLiteral("Administracion")
        : copia.titulo.endsWith(QStringLiteral("IT")) ? QStringLiteral("Interesado")
                                                      : QStringLiteral("Borrador");
    EXPECT_EQ(sellos, clase == QStringLiteral("II") ? QStringList() : QStringList(suyo));
}

/// What the page says without a value, in this language.
QStringList DeclaracionEntera::formularioEnBlanco(const QString& clase, int filas) {
    RegistrosDeImpresion blanco;
    const QString ruta;
    blanco.datos.FECHADECLARACION = p_.programa().declaracion().general.FECHADECLARACION;
    for (auto* marca : {&blanco.datos.Apartado2, &blanco.datos.Apartado4, &blanco.datos.Apartado6,
                        &blanco.datos.AnexoI, &blanco.datos.AnexoII})
        *marca = QStringLiteral("X");
    for (int i = 0; i < filas; ++i) {
        blanco.participantes.colParticipes.push_back(
            std::make_shared<cParticipes>(blanco.participantes, ruta));
        blanco.participantes.colParticipes.back()->Modo = QStringLiteral("C");
    }
    test::FabricaRegistro fabrica;
    padral::Imprimir(p_.programa().estado(), blanco.registros, fabrica)
        .ImprimirDeclaracion(QStringLiteral("BO"));
    const QStringList clases{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                             QStringLiteral("4"), QStringLiteral("I"), QStringLiteral("II")};
    const int pagina = static_cast<int>(clases.indexOf(clase)) + 1;
    const bool sinFilas = filas == 0 && pagina == 6;
    return LeerHoja(*fabrica.documentos.front(), sinFilas ? 5 : pagina, clase).formulario;
}

void DeclaracionEntera::cambiar() {
    ASSERT_TRUE(p_.interprete().Jugar(guion_, guion_.cambio));
    EXPECT_FALSE(p_.HayPantalla()) << "the declaration is still open";
    const auto todas = p_.Filas();
    EXPECT_EQ(Declaraciones(todas), QList<qint64>{clave_});
    const auto nuevas = De(todas, clave_);
    EXPECT_EQ(Diferencias(Contenido(guion_.filasCambiadas, euskera()), Cambios(filas_, nuevas)),
              QStringList());
    for (std::size_t i = 0; i < std::min(filas_.size(), nuevas.size()); ++i)
        EXPECT_EQ(nuevas[i].clave, filas_[i].clave) << "keys of participants stay";
    filas_ = nuevas;
}

void DeclaracionEntera::copiar() {
    const auto antes = p_.Filas();
    ASSERT_TRUE(p_.Copiar(clave_));
    ASSERT_TRUE(p_.Pulsar({u"cmdAceptar"}));
    const auto todas = p_.Filas();
    ASSERT_EQ(Declaraciones(todas).size(), 2);
    const qint64 copia = Declaraciones(todas).last();
    EXPECT_GT(copia, clave_);
    EXPECT_EQ(SinLasDe(todas, copia), antes) << "the source stays as it was";
    const auto copiadas = De(todas, copia);
    EXPECT_EQ(Contenido(copiadas), Contenido(filas_));
    ASSERT_EQ(copiadas.size(), filas_.size());
    for (std::size_t i = 0; i < filas_.size(); ++i)
        EXPECT_TRUE(filas_[i].clave == 0 || copiadas[i].clave != filas_[i].clave)
            << "its participants are its own";
}

void DeclaracionEntera::borrar() {
    const qint64 copia = Declaraciones(p_.Filas()).last();
    const auto otras = SinLasDe(p_.Filas(), copia);
    ASSERT_TRUE(p_.Borrar(copia));
    EXPECT_EQ(p_.Filas(), otras);
    ASSERT_TRUE(p_.Borrar(clave_));
    EXPECT_EQ(p_.Filas(), SinLasDe(otras, clave_));
    EXPECT_EQ(p_.programa().estado().mdi.NUMDECLA, 0);
}

TEST_P(DeclaracionEntera, EnTodoSuCamino) {
    using Prueba = DeclaracionEntera_EnTodoSuCamino_Test;
    using Etapa = void (Prueba::*)();
    constexpr Etapa Etapas[] = {&Prueba::entrar,   &Prueba::guardada, &Prueba::abrirYMirar,
                                &Prueba::imprimir, &Prueba::cambiar,  &Prueba::copiar,
                                &Prueba::borrar};
    for (const Etapa etapa : Etapas) {
        (this->*etapa)();
        if (HasFatalFailure()) return;
    }
}

INSTANTIATE_TEST_SUITE_P(, DeclaracionEntera, testing::ValuesIn(Viajes()), [](const auto& i) {
    const bool euskera = i.param.idioma == QStringLiteral("E");
    return i.param.guion.chopped(4).toStdString() + (euskera ? "_eu" : "_es");
});

}  // namespace

}  // namespace padral::pruebas
