#pragma once

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QtTest>
#include <filesystem>
#include <memory>

#include "outputs/print_list.h"
#include "tests/support/memory_settings.h"
#include "tests/support/scripted_dialog.h"
#include "tests/support/temp_folder.h"
#include "tests/ui/test_reducer.h"
#include "ui/base_page.h"
#include "ui/main_window.h"
#include "ui/teams_window.h"

namespace quinteva::pruebas {

// Un programa recién instalado: la carpeta del programa con sus datos (copia de data/), una
// carpeta de trabajo vacía, otra para los documentos del usuario, ajustes en memoria y un
// Dialogo con guion.
struct Instalacion {
    CarpetaTemporal programa, trabajo, documentos;
    AjustesEnMemoria ajustes;
    DialogoGuionado dialogo;
    ReductorDePrueba reductor;
    // Lo que el programa mandó a la impresora, en orden.
    std::vector<outputs::Impresion> impresas;

    ui::Imprimir Impresora() {
        return [this](const outputs::Impresion& hoja) { impresas.push_back(hoja); };
    }

    Instalacion() {
        std::filesystem::copy(QUINTEVA_DATOS, programa.Ruta(),
                              std::filesystem::copy_options::recursive);
        // Sin ventana de bienvenida ni aviso de Boletos salvo en sus pruebas.
        ajustes.Guardar(base::kAplicacion, "Inic05", "VerBien", "NO");
        ajustes.Guardar(base::kAplicacion, "Valores", "AvBoletos", "NO");
        ajustes.Guardar(base::kAplicacion, "Pleno15", "Goles1", "1");
        ajustes.Guardar(base::kAplicacion, "Pleno15", "Goles2", "1");
    }

    std::unique_ptr<ui::VentanaPrincipal> Ventana(
        const std::optional<std::filesystem::path>& argumento = std::nullopt) {
        auto v = std::make_unique<ui::VentanaPrincipal>(
            ui::Servicios{trabajo.Ruta(), programa.Ruta(), programa.Ruta(), ajustes, dialogo,
                          &reductor, Impresora()});
        v->Arrancar(argumento);
        v->show();
        if (!QTest::qWaitForWindowExposed(v.get())) qFatal("La ventana no se muestra");
        return v;
    }
};

template <typename T>
T* Hijo(QObject& madre, const QString& nombre) {
    T* hijo = madre.findChild<T*>(nombre);
    if (hijo == nullptr) qFatal("Falta %s", qPrintable(nombre));
    return hijo;
}

// El texto de una etiqueta hija.
inline QString TextoDe(QObject& madre, const char* nombre) {
    return Hijo<QLabel>(madre, QString::fromUtf8(nombre))->text();
}

// Un clic de verdad en el centro de una celda.
inline void Pulsar(QTableWidget* tabla, int fila, int columna) {
    tabla->scrollToItem(tabla->item(fila, columna));
    const QRect r = tabla->visualItemRect(tabla->item(fila, columna));
    QTest::mouseClick(tabla->viewport(), Qt::LeftButton, {}, r.center());
}

inline void Pagina(ui::VentanaPrincipal& v, int pagina) {
    QTest::mouseClick(Hijo<QPushButton>(v, QStringLiteral("BotonPagina%1").arg(pagina)),
                      Qt::LeftButton);
}

inline void ElegirJornada(ui::VentanaPrincipal& v, int jornada) {
    auto* lista = Hijo<QComboBox>(v, QStringLiteral("ListaJornadas"));
    const int i = lista->findData(jornada);
    lista->setCurrentIndex(i);
    emit lista->activated(i);
}

// Marca en la rejilla de la base los signos dados (partido 1 a 14, signo 0 a 2) y pone los goles
// del Pleno con el teclado.
inline void PonerBase(ui::VentanaPrincipal& v, std::initializer_list<std::pair<int, int>> signos,
                      char golLocal, char golVisitante) {
    auto* rejilla = Hijo<QTableWidget>(v, QStringLiteral("RejillaBase"));
    for (auto [partido, signo] : signos) Pulsar(rejilla, partido - 1, signo + 2);
    rejilla->setFocus();
    rejilla->setCurrentCell(14, 2);
    QTest::keyClick(rejilla, golLocal);
    rejilla->setCurrentCell(14, 4);
    QTest::keyClick(rejilla, golVisitante);
}

// Los catorce "1" y tres partidos más con signos añadidos.
inline void BaseDeEjemplo(ui::VentanaPrincipal& v) {
    PonerBase(v, {}, '1', 'm');
    auto* rejilla = Hijo<QTableWidget>(v, QStringLiteral("RejillaBase"));
    for (int p = 1; p <= 14; ++p) Pulsar(rejilla, p - 1, 2);
    // Dobles en 1 y 2 (1X), triples en 3 y 4.
    for (auto [p, s] : {std::pair{1, 1}, {2, 1}, {3, 1}, {3, 2}, {4, 1}, {4, 2}})
        Pulsar(rejilla, p - 1, s + 2);
}

inline void EsperarTrabajo(ui::VentanaPrincipal& v) {
    QTRY_VERIFY_WITH_TIMEOUT(!v.Trabajo().EnCurso(), 60000);
}

// Lo que se mostró o preguntó desde la marca, sin los diálogos de archivos y carpetas.
inline std::vector<std::string> Dichos(const DialogoGuionado& dialogo, std::size_t marca = 0) {
    std::vector<std::string> textos;
    const auto& registro = dialogo.Registro();
    for (std::size_t i = marca; i < registro.size(); ++i) {
        const auto& tipo = registro[i].tipo;
        if (tipo != "ArchivoParaAbrir" && tipo != "ArchivoParaGuardar" && tipo != "Carpeta")
            textos.push_back(registro[i].texto);
    }
    return textos;
}

// El menú de contexto de un widget en un punto (como un clic derecho): espera el menú de ese
// nombre, elige la acción de ese texto y espera a que el menú se borre.
inline void MenuDeContexto(QObject& ventana, QWidget* widget, QPoint donde, const QString& menu,
                           const QString& accion) {
    emit widget->customContextMenuRequested(donde);
    QMenu* abierto = nullptr;
    QTRY_VERIFY((abierto = ventana.findChild<QMenu*>(menu)) != nullptr);
    for (QAction* a : abierto->actions()) {
        if (a->text() == accion) a->trigger();
    }
    const QPointer<QMenu> cerrado(abierto);
    abierto->close();
    QTRY_VERIFY(cerrado.isNull());
}

// La ventana que abre la acción de ese nombre de los menús de la principal, ya a la vista.
template <typename Ventana>
Ventana* AbrirDesdeMenu(ui::VentanaPrincipal& v, const char* accion) {
    // Una ventana del mismo tipo ya cerrada se borra antes, para no encontrarla a ella.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Hijo<QAction>(v, QString::fromLatin1(accion))->trigger();
    auto* ventana = v.findChild<Ventana*>();
    if (ventana == nullptr || !QTest::qWaitForWindowExposed(ventana)) qFatal("No se abre");
    return ventana;
}

// "Agregar" del menú de la fila de la lista de equipos ("ListaEquipos") de una ventana.
inline void AgregarDeLaLista(QObject& ventana, int fila) {
    auto* lista = Hijo<QListWidget>(ventana, QStringLiteral("ListaEquipos"));
    MenuDeContexto(ventana, lista, lista->visualItemRect(lista->item(fila)).center(),
                   QStringLiteral("MenuEquipo"), QStringLiteral("Agregar"));
}

// Un clic en el botón de ese nombre.
inline void Pulsar(QObject& madre, const char* boton) {
    QTest::mouseClick(Hijo<QPushButton>(madre, QString::fromLatin1(boton)), Qt::LeftButton);
}

// Una temporada 24/25 recién creada en "Equipos", con los equipos de la que había.
inline void TemporadaNueva(Instalacion& inst, ui::VentanaPrincipal& v) {
    auto* equipos = AbrirDesdeMenu<ui::VentanaEquiposQt>(v, "AccionEquipos");
    inst.dialogo.Responder(base::Respuesta::Aceptar)
        .Responder(std::optional<std::string>("24/25"))
        .Responder(std::optional<std::string>("20"))
        .Responder(std::optional<std::string>("22"));
    Pulsar(*equipos, "BotonNuevaTemporada");
    Pulsar(*equipos, "BotonCerrar");
    QTRY_VERIFY(v.findChild<ui::VentanaEquiposQt*>() == nullptr);
}

inline void Marcar(ui::VentanaPrincipal& v, const char* opcion) {
    auto* r = Hijo<QRadioButton>(v, QString::fromLatin1(opcion));
    QTest::mouseClick(r, Qt::LeftButton, {}, QPoint(8, r->height() / 2));
}

// Genera la base de ejemplo (36 columnas, sin condiciones) y la reduce al 13 con el reductor de
// prueba; si se pide, más signos en el partido 5 (108 columnas).
inline std::unique_ptr<ui::VentanaPrincipal> Reducida(Instalacion& inst, bool grande = false) {
    auto v = inst.Ventana();
    ElegirJornada(*v, 25);
    BaseDeEjemplo(*v);
    if (grande) {
        auto* rejilla = Hijo<QTableWidget>(*v, QStringLiteral("RejillaBase"));
        Pulsar(rejilla, 4, 3);
        Pulsar(rejilla, 4, 4);
    }
    Pagina(*v, ui::kGenerar);
    Pulsar(*v, "BotonGenerar");
    EsperarTrabajo(*v);
    Pagina(*v, ui::kReducir);
    Pulsar(*v, "BotonReducir");
    EsperarTrabajo(*v);
    return v;
}

// La misma Combinación guardada y abierta de nuevo, como la encuentra el usuario otro día.
inline std::unique_ptr<ui::VentanaPrincipal> Guardada(Instalacion& inst,
                                                      const std::filesystem::path& ruta,
                                                      bool grande = false) {
    {
        auto v = Reducida(inst, grande);
        inst.dialogo.Responder(std::optional<std::filesystem::path>(ruta));
        Hijo<QAction>(*v, "AccionGuardarComo")->trigger();
        if (!v->close()) qFatal("La ventana no se cierra");
    }
    auto v = inst.Ventana(ruta);
    Pagina(*v, ui::kBoletos);
    return v;
}

}  // namespace quinteva::pruebas
