// The page that leads the browser to the download.

#include "online/online_fixture.h"

namespace padral {
namespace {

using PaginaDescarga = pruebas::Actualizaciones;

QByteArray paginaCon(const QByteArray& url) {
    return "<HTML>  <BODY ONLOAD='document.formulario.submit();'>  <FORM NAME='formulario' "
           "action='" +
           url + "' method=post>  </FORM></BODY> </HTML>";
}

struct SinPagina : pruebas::Actualizaciones {
    // The message without a browser, in the language of the run.
    void esperaAviso() {
        if (estado.DesplazamientoIdioma == 0)
            avisos.Espera(QStringLiteral("Crear un nuevo partícipe"), QStringLiteral("......"));
        else
            avisos.Espera(QStringLiteral("Partaide berria sortu"), QStringLiteral("......"));
    }
    void abrirSinExito(const QString& url = QStringLiteral("http://127.0.0.1/baja")) {
        esperaAviso();
        online.AbrirPaginaDescarga(url);
        avisos.Verificar();
        EXPECT_TRUE(navegador.Abiertos.empty() || !navegador.Arranca) << url.toStdString();
    }
};

TEST_F(PaginaDescarga, IsWrittenLiterallyAndOpened) {
    online.AbrirPaginaDescarga(QStringLiteral("https://127.0.0.1/baja?a=1&b=2 3#d"));
    ASSERT_EQ(navegador.Abiertos.size(), 1U);
    EXPECT_EQ(navegador.Buscados, QStringList(pagina()));
    EXPECT_EQ(navegador.Abiertos[0].programa, QStringLiteral("/usr/bin/navegador"));
    EXPECT_EQ(navegador.Abiertos[0].fichero, pagina());
    EXPECT_EQ(navegador.Abiertos[0].contenido, paginaCon("https://127.0.0.1/baja?a=1&b=2 3#d"));
}

TEST_F(PaginaDescarga, StaysAndIsReplaced) {
    escribir(pagina(), QByteArray(1000, 'x'));
    online.AbrirPaginaDescarga(QStringLiteral("http://127.0.0.1/1"));
    EXPECT_EQ(contenido(pagina()), paginaCon("http://127.0.0.1/1"));
    online.AbrirPaginaDescarga(QStringLiteral("HTTP://127.0.0.1/2"));
    EXPECT_EQ(contenido(pagina()), paginaCon("HTTP://127.0.0.1/2"));
}

struct CasoDireccion {
    const char *url, *escrita;
};

TEST_F(PaginaDescarga, LetsNoAddressLeaveItsAttribute) {
    const CasoDireccion casos[] = {
        {"http://a/'><script>x()</script>", "http://a/%27%3E%3Cscript%3Ex()%3C/script%3E"},
        {"http://a/\" onload=\"x", "http://a/%22 onload=%22x"},
        {"http://a/\t\r\n\x01\x1F\x7F", "http://a/%09%0D%0A%01%1F%7F"},
        {"http://a/\xC2\x85z", "http://a/%C2%85z"},
        {"http://a/%27", "http://a/%27"},
        {"http://a/a\xC3\xB1o\xF0\x9F\x98\x80", "http://a/a\xC3\xB1o\xF0\x9F\x98\x80"},
    };
    for (const auto& caso : casos) {
        online.AbrirPaginaDescarga(QString::fromUtf8(caso.url));
        EXPECT_EQ(contenido(pagina()), paginaCon(caso.escrita)) << caso.escrita;
    }
    const QString conCero = QStringLiteral("http://a/") + QChar(0) + u'b';
    online.AbrirPaginaDescarga(conCero);
    EXPECT_EQ(contenido(pagina()), paginaCon("http://a/%00b"));
}

TEST_F(SinPagina, OtherAddressesAreNeverWritten) {
    for (const char* url :
         {"", "javascript:alert(1)", "file:///etc/passwd", "ftp://127.0.0.1/x", "data:text/html,x",
          "//127.0.0.1/x", "127.0.0.1/baja", "http:/127.0.0.1", "https:127.0.0.1", " http://a/",
          "httpx://a/", "\thttp://a/", "javascript:'http://a/'"}) {
        abrirSinExito(QString::fromUtf8(url));
        EXPECT_EQ(contenido(pagina()), "(none)") << url;
    }
    EXPECT_TRUE(navegador.Buscados.isEmpty());
}

TEST_F(SinPagina, WithoutABrowserNothingOpens) {
    navegador.Programa.clear();
    abrirSinExito();
    ponerEuskera();
    abrirSinExito();
    EXPECT_EQ(navegador.Buscados, (QStringList{pagina(), pagina()}));
    EXPECT_EQ(contenido(pagina()), paginaCon("http://127.0.0.1/baja"));
}

TEST_F(SinPagina, ABrowserThatDoesNotStartIsNone) {
    navegador.Arranca = false;
    abrirSinExito();
    EXPECT_EQ(navegador.Abiertos.size(), 1U);
}

TEST_F(SinPagina, AFolderThatCannotBeWrittenIsAsNoBrowser) {
    estado.CarpetaPrograma = carpeta.filePath(QStringLiteral("nowhere"));
    abrirSinExito();
    estado.CarpetaPrograma = carpeta.path();
    ocupar(pagina());
    abrirSinExito();
    EXPECT_TRUE(navegador.Buscados.isEmpty());
}

}  // namespace
}  // namespace padral
