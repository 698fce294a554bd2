// What people wait for, beside the bare thing it is made of.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>

#include "app/program.h"
#include "declaration/cross_rules.h"
#include "platform/failure.h"
#include "printing/job.h"
#include "printing/ui/printer_factory.h"

namespace padral {

namespace {

constexpr int NumDeclaraciones = 100000;

class AvisadorMudo : public Avisador {
public:
    Respuesta Mostrar(const Mensaje&) override { return Respuesta::Aceptar; }
};

class RelojSinEspera : public RelojSistema {
public:
    void Esperar(int) override {}
};

/// Resident memory in MiB now.
double memoria() {
    QFile fichero(QStringLiteral("/proc/self/statm"));
    if (!fichero.open(QIODevice::ReadOnly)) return 0;
    return fichero.readAll().split(' ').value(1).toDouble() * 4096 / 1048576;
}

/// A program folder with fresh data; the big one holds 100 000 declarations.
class Carpeta {
public:
    /// The big one lies in memory where that is to be had: it takes 100 000 transactions.
    explicit Carpeta(bool grande)
        : carpeta_(grande && QDir(QStringLiteral("/dev/shm")).exists()
                       ? QStringLiteral("/dev/shm/padral-XXXXXX")
                       : QDir::tempPath() + QStringLiteral("/padral-XXXXXX")) {
        QDir(carpeta_.path()).mkpath(QStringLiteral("Tablas"));
        for (const QString& nombre :
             {QStringLiteral("DPadralLec.mdb"), QStringLiteral("DPadralMod.mdb")})
            QFile::copy(QStringLiteral(PADRAL_BINARY_DIR "/data/") + nombre,
                        carpeta_.filePath(QStringLiteral("Tablas/") + nombre));
        if (grande) llenar();
    }
    QString ruta() const { return carpeta_.path(); }
    QString mod() const { return carpeta_.filePath(QStringLiteral("Tablas/DPadralMod.mdb")); }

private:
    void llenar();
    QTemporaryDir carpeta_;
};

struct Banco {
    explicit Banco(const QString& carpeta)
        : impresora(reloj), programa({avisador, reloj, impresora}, carpeta, carpeta) {
        impresora.UsarPdf(carpeta);
    }
    AvisadorMudo avisador;
    RelojSinEspera reloj;
    FabricaQt impresora;
    Programa programa;
};

void datos(cDeclaraciones& d, int n) {
    static const char* const Apellidos[] = {"ÑUÑEZ",      "AGIRRE", "ZUBIA",
                                            "ECHEVERRIA", "NUÑEZ",  "OCHOA"};
    auto& g = d.general;
    g.DNI = QStringLiteral("%1Z").arg(n * 7919 % 100000000, 8, 10, QChar(u'0'));
    g.NOMBRE =
        QString::fromUtf8(Apellidos[n % 6]) + QStringLiteral(" %1 DECLARANTE").arg(n * 31 % 99991);
    g.NumeroArchivo = QStringLiteral("R%1").arg(n);
    g.FECHADECLARACION = 20200101 + n % 28;
    g.Causa1 = QStringLiteral("I");
    g.FirmaEnCalidadDe = FirmaElMismo;
    g.ElMismo = QStringLiteral("X");
    d.csde = 0;
}

void Carpeta::llenar() {
    Banco banco(ruta());
    banco.programa.Iniciar();
    for (int n = 0; n < NumDeclaraciones; ++n) {
        datos(banco.programa.declaracion(), n);
        banco.programa.declaracion().GuardarDeclaracion();
    }
}

const Carpeta& carpetaGrande() {
    static const Carpeta carpeta(true);
    return carpeta;
}

/// Shows a window and waits until it has painted.
void pintar(QWidget& ventana) {
    ventana.resize(1280, 720);
    ventana.show();
    ventana.activateWindow();
    QCoreApplication::processEvents();
    ventana.grab();
}

/// A process that shows a window and ends once it is painted: that of the program, or a bare one.
int mostrarYAcabar(bool programa, const QString& carpeta) {
    if (!programa) {
        QMainWindow ventana;
        pintar(ventana);
    } else {
        Banco banco(carpeta);
        banco.programa.Iniciar();
        banco.programa.estado().act.ActOnline = 1;
        banco.programa.MostrarVentana();
        pintar(banco.programa.ventana());
    }
    return static_cast<int>(memoria());
}

void proceso(benchmark::State& estado, const char* modo) {
    const Carpeta carpeta(false);
    int megas = 0;
    for (auto _ : estado) {
        QProcess otro;
        otro.start(QCoreApplication::applicationFilePath(),
                   {QString::fromLatin1(modo), carpeta.ruta()});
        otro.waitForFinished();
        megas = otro.exitCode();
    }
    estado.counters["MiB"] = megas;
}
void ProcesoConVentanaSola(benchmark::State& estado) { proceso(estado, "--ventana"); }
void ProcesoDelPrograma(benchmark::State& estado) { proceso(estado, "--programa"); }
BENCHMARK(ProcesoConVentanaSola)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ProcesoDelPrograma)->Unit(benchmark::kMillisecond)->UseRealTime();

void LeerFilasConSqlite(benchmark::State& estado) {
    const QByteArray fichero = carpetaGrande().mod().toUtf8();
    const char* sql =
        "SELECT csde, FECHADECLARACION, DNI, NOMBRE, NumeroArchivo, Causa1, APARTADOS, Causa2 "
        "FROM TDeclaraciones";
    for (auto _ : estado) {
        sqlite3* base = nullptr;
        sqlite3_open_v2(fichero.constData(), &base, SQLITE_OPEN_READONLY, nullptr);
        sqlite3_stmt* consulta = nullptr;
        if (sqlite3_prepare_v2(base, sql, -1, &consulta, nullptr) != SQLITE_OK)
            estado.SkipWithError(sqlite3_errmsg(base));
        qint64 letras = 0;
        while (sqlite3_step(consulta) == SQLITE_ROW)
            for (int c = 2; c < 8; ++c) {
                sqlite3_column_text(consulta, c);
                letras += sqlite3_column_bytes(consulta, c);
            }
        benchmark::DoNotOptimize(letras);
        sqlite3_finalize(consulta);
        sqlite3_close(base);
    }
}
BENCHMARK(LeerFilasConSqlite)->Unit(benchmark::kMillisecond);

void LeerLista(benchmark::State& estado) {
    SvrDPadral::cDeclaracionesSvr servidor;
    servidor.mdbname = carpetaGrande().mod();
    const QString columna = QString::number(estado.range(0));
    for (auto _ : estado) {
        SvrDPadral::ListaDeclaraciones lista;
        servidor.DameDeclaraciones({}, lista, columna, QStringLiteral("ASC"));
        benchmark::DoNotOptimize(lista.Filas());
    }
    estado.counters["MiB"] = memoria();
}
BENCHMARK(LeerLista)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);

void BuscarPorNombre(benchmark::State& estado) {
    SvrDPadral::cDeclaracionesSvr servidor;
    servidor.mdbname = carpetaGrande().mod();
    SvrDPadral::CriteriosLista criterios;
    criterios[2] = QStringLiteral("ñuñez 1");
    for (auto _ : estado) {
        SvrDPadral::ListaDeclaraciones lista;
        servidor.DameDeclaraciones(criterios, lista, QStringLiteral("2"), QStringLiteral("ASC"));
        benchmark::DoNotOptimize(lista.Filas());
    }
}
BENCHMARK(BuscarPorNombre)->Unit(benchmark::kMillisecond);

void AbrirLista(benchmark::State& estado) {
    Banco banco(carpetaGrande().ruta());
    banco.programa.Iniciar();
    banco.programa.estado().act.ActOnline = 1;
    auto& ventana = banco.programa.ventana();
    ventana.resize(1280, 720);
    ventana.show();
    ventana.HabilitarMenus();
    const double antes = memoria();
    for (auto _ : estado) {
        ventana.findChild<QAction*>(QStringLiteral("Abrir"))->trigger();
        ventana.grab();
        estado.PauseTiming();
        estado.counters["MiB more"] = memoria() - antes;
        ventana.findChild<QPushButton*>(QStringLiteral("cmdAnterior"))->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        estado.ResumeTiming();
    }
}
BENCHMARK(AbrirLista)->Unit(benchmark::kMillisecond);

void Guardar(benchmark::State& estado) {
    const Carpeta carpeta(false);
    Banco banco(carpeta.ruta());
    banco.programa.Iniciar();
    auto& d = banco.programa.declaracion();
    datos(d, 1);
    d.csde = d.GuardarDeclaracion();
    for (auto _ : estado) d.GuardarDeclaracion();
}
BENCHMARK(Guardar)->Unit(benchmark::kMillisecond);

/// One row replaced in a transaction with the same settings.
void GuardarFilaConSqlite(benchmark::State& estado) {
    const QTemporaryDir carpeta;
    sqlite3* base = nullptr;
    sqlite3_open(carpeta.filePath(QStringLiteral("a.db")).toUtf8().constData(), &base);
    sqlite3_exec(base, "CREATE TABLE t(id INTEGER PRIMARY KEY, x TEXT)", nullptr, nullptr, nullptr);
    for (auto _ : estado)
        sqlite3_exec(base, "INSERT OR REPLACE INTO t VALUES(1, hex(randomblob(2000)))", nullptr,
                     nullptr, nullptr);
    sqlite3_close(base);
}
BENCHMARK(GuardarFilaConSqlite)->Unit(benchmark::kMillisecond);

/// A start that holds and marks every section and breaks no rule, so that a check goes all the way.
void llenarSecciones(cDeclaraciones& d, int participes) {
    using G = DatosGeneralesStore;
    datos(d, 1);
    for (const auto marca : {&G::Apartado2, &G::Apartado3, &G::Apartado4, &G::Apartado5,
                             &G::Apartado7, &G::AnexoI, &G::AnexoII})
        d.general.*marca = QStringLiteral("X");
    d.apartado2.Lleno = d.apartado3.Lleno = d.apartado4.Lleno = d.apartado5.APARTADO5LLENO = true;
    d.apartado7.Lleno = d.anexoII.Lleno = true;
    d.apartado2.ElMismoAct = QStringLiteral("X");
    d.apartado4.IVAEXPORT = QStringLiteral("B");
    for (const auto& c : TablaApartado5()) c.escribir(d.apartado5, QStringLiteral("N"));
    d.apartado5.IVA = d.apartado5.GENERAL = d.apartado5.IRPFDIRECTA = QStringLiteral("S");
    for (int i = 0; i < participes; ++i) {
        auto p = std::make_shared<cParticipes>(d.participantes, d.estado.RutaBDModificacion);
        p->DNI = QStringLiteral("12345678Z");
        p->PorcenPart = 100.0F / static_cast<float>(participes);
        d.participantes.colParticipes.push_back(std::move(p));
        d.IncrementarNumParti();
    }
}

/// All rules across sections, which a save runs, by the number of participants.
void ValidarCruces(benchmark::State& estado) {
    const Carpeta carpeta(false);
    Banco banco(carpeta.ruta());
    banco.programa.Iniciar();
    auto& d = banco.programa.declaracion();
    llenarSecciones(d, static_cast<int>(estado.range(0)));
    const ServidorNif valida = [&banco](const QString& nif) {
        return banco.programa.estado().ValidaNifCif(nif);
    };
    if (!ValidarApartados(d, valida).revision.valida() ||
        !ValidarPorcentajes(d.participantes).valida())
        estado.SkipWithError("a rule is broken");
    for (auto _ : estado) {
        benchmark::DoNotOptimize(ValidarApartados(d, valida));
        benchmark::DoNotOptimize(ValidarPorcentajes(d.participantes));
    }
}
BENCHMARK(ValidarCruces)->Arg(2)->Arg(100)->Unit(benchmark::kNanosecond);

void ImprimirDosCopias(benchmark::State& estado) {
    const Carpeta carpeta(false);
    Banco banco(carpeta.ruta());
    banco.programa.Iniciar();
    auto& d = banco.programa.declaracion();
    datos(d, 1);
    Imprimir imprimir(banco.programa.estado(),
                      {d.general, d.apartado2, d.apartado3, d.apartado4, d.apartado5, d.apartado6,
                       d.apartado7, d.participantes, d.anexoII},
                      banco.impresora);
    for (auto _ : estado)
        for (const QString& copia : CopiasPedidas({})) imprimir.ImprimirDeclaracion(copia);
    banco.impresora.TomarFicheros();
}
BENCHMARK(ImprimirDosCopias)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace padral

int main(int argc, char** argv) {
    const QApplication aplicacion(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const auto argumentos = QCoreApplication::arguments();
    const QString modo = argumentos.value(1);
    if (modo == QStringLiteral("--ventana") || modo == QStringLiteral("--programa"))
        return padral::mostrarYAcabar(modo == QStringLiteral("--programa"), argumentos.value(2));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
