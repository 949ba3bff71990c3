#include "ui/work_pages.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QTableWidget>
#include <QVBoxLayout>

namespace quinteva::ui {
namespace {

QPushButton* Boton(QWidget* madre, QLayout* caja, const QString& texto, const QString& nombre) {
    auto* b = new QPushButton(texto, madre);
    b->setObjectName(nombre);
    b->setMinimumWidth(b->fontMetrics().horizontalAdvance(texto) + 40);
    caja->addWidget(b);
    return b;
}

QProgressBar* Barra(QWidget* madre, const QString& nombre) {
    auto* b = new QProgressBar(madre);
    b->setObjectName(nombre);
    b->setTextVisible(false);
    b->setRange(0, 1);
    b->setValue(0);
    return b;
}

QLabel* Titulo(QWidget* madre, const QString& texto) {
    auto* t = new QLabel(texto, madre);
    QFont f = t->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.3);
    t->setFont(f);
    return t;
}

}  // namespace

QLabel* CifraConRotulo(QWidget* madre, QFormLayout* formulario, const QString& rotulo,
                       const QString& nombre) {
    auto* valor = new QLabel(madre);
    valor->setObjectName(nombre);
    valor->setFrameShape(QFrame::StyledPanel);
    valor->setFrameShadow(QFrame::Sunken);
    valor->setMinimumWidth(valor->fontMetrics().horizontalAdvance(QStringLiteral(" 4.782.969")) +
                           16);
    valor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    formulario->addRow(rotulo, valor);
    return valor;
}

PaginaGenerar::PaginaGenerar(QWidget* madre) : QWidget(madre) {
    setObjectName(QStringLiteral("PaginaGenerar"));
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(Titulo(this, QStringLiteral("Generar Apuestas")));
    auto* formulario = new QFormLayout;
    posibles = CifraConRotulo(this, formulario, QStringLiteral("Apuestas posibles"),
                              QStringLiteral("ApuestasPosibles"));
    dobles =
        CifraConRotulo(this, formulario, QStringLiteral("Dobles"), QStringLiteral("GenerarDobles"));
    triples = CifraConRotulo(this, formulario, QStringLiteral("Triples"),
                             QStringLiteral("GenerarTriples"));
    condiciones = CifraConRotulo(this, formulario, QStringLiteral("Nº Condiciones"),
                                 QStringLiteral("GenerarCondiciones"));
    seleccionadas = CifraConRotulo(this, formulario, QStringLiteral("Apuestas seleccionadas"),
                                   QStringLiteral("ApuestasSeleccionadas"));
    caja->addLayout(formulario);
    auto* botones = new QHBoxLayout;
    generar = Boton(this, botones, QStringLiteral("&Generar"), QStringLiteral("BotonGenerar"));
    detener =
        Boton(this, botones, QStringLiteral("&Detener"), QStringLiteral("BotonDetenerGenerar"));
    info = Boton(this, botones, QStringLiteral("&INFO"), QStringLiteral("BotonInfoGenerar"));
    botones->addStretch();
    detener->setEnabled(false);
    info->setEnabled(false);
    caja->addLayout(botones);
    barra = Barra(this, QStringLiteral("BarraGenerar"));
    caja->addWidget(barra);
    caja->addStretch();
}

PaginaReducir::PaginaReducir(QWidget* madre) : QWidget(madre) {
    setObjectName(QStringLiteral("PaginaReducir"));
    auto* caja = new QHBoxLayout(this);
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(Titulo(this, QStringLiteral("Reducir")));
    auto* niveles = new QGroupBox(QStringLiteral("Reducción"), this);
    auto* cajaNiveles = new QVBoxLayout(niveles);
    auto* grupo = new QButtonGroup(this);
    const std::array<QString, 4> textos = {
        QStringLiteral(" Reducir al 13"), QStringLiteral(" Reducir al 12"),
        QStringLiteral(" Reducir al 11"), QStringLiteral(" Reducir al 10")};
    for (std::size_t i = 0; i < textos.size(); ++i) {
        opciones[i] = new QRadioButton(textos[i], niveles);
        opciones[i]->setObjectName(QStringLiteral("OpcionAl%1").arg(13 - static_cast<int>(i)));
        grupo->addButton(opciones[i]);
        cajaNiveles->addWidget(opciones[i]);
    }
    opciones[0]->setChecked(true);
    opciones[3]->setVisible(false);
    optimizada = new QCheckBox(QStringLiteral("Reducción optimizada"), niveles);
    optimizada->setObjectName(QStringLiteral("ReduccionOptimizada"));
    optimizada->setToolTip(QStringLiteral(
        "Busca durante unos segundos menos columnas con la misma garantía; \"&Detener\" se "
        "queda con la mejor hallada"));
    cajaNiveles->addWidget(optimizada);
    izquierda->addWidget(niveles);
    auto* formulario = new QFormLayout;
    total = CifraConRotulo(this, formulario, QStringLiteral("Total Apuestas"),
                           QStringLiteral("TotalApuestas"));
    reducidas = CifraConRotulo(this, formulario, QStringLiteral("Apuestas reducidas"),
                               QStringLiteral("ApuestasReducidas"));
    condiciones = CifraConRotulo(this, formulario, QStringLiteral("Nº Condiciones"),
                                 QStringLiteral("ReducirCondiciones"));
    izquierda->addLayout(formulario);
    auto* botones = new QGridLayout;
    auto* fila1 = new QHBoxLayout;
    auto* fila2 = new QHBoxLayout;
    reducir = Boton(this, fila1, QStringLiteral("&Reducir"), QStringLiteral("BotonReducir"));
    detener = Boton(this, fila1, QStringLiteral("&Detener"), QStringLiteral("BotonDetenerReducir"));
    tabla = Boton(this, fila2, QStringLiteral("Tabla"), QStringLiteral("BotonTabla"));
    info = Boton(this, fila2, QStringLiteral("&INFO"), QStringLiteral("BotonInfoReducir"));
    botones->addLayout(fila1, 0, 0);
    botones->addLayout(fila2, 1, 0);
    detener->setEnabled(false);
    info->setEnabled(false);
    izquierda->addLayout(botones);
    barra = Barra(this, QStringLiteral("BarraReducir"));
    izquierda->addWidget(barra);
    izquierda->addStretch();
    caja->addLayout(izquierda, 1);

    auto* derecha = new QVBoxLayout;
    rotuloSeleccion = new QLabel(
        QStringLiteral("Si lo desea seleccione los partidos a incluir en la reducción"), this);
    rotuloSeleccion->setWordWrap(true);
    derecha->addWidget(rotuloSeleccion);
    seleccion = new QTableWidget(14, 2, this);
    seleccion->setObjectName(QStringLiteral("RejillaSeleccion"));
    seleccion->setHorizontalHeaderLabels({QStringLiteral("Partido"), QStringLiteral("Sel.")});
    seleccion->verticalHeader()->setDefaultSectionSize(seleccion->fontMetrics().height() + 6);
    seleccion->setEditTriggers(QAbstractItemView::NoEditTriggers);
    seleccion->setSelectionMode(QAbstractItemView::NoSelection);
    seleccion->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    seleccion->setColumnWidth(
        1, seleccion->fontMetrics().horizontalAdvance(QStringLiteral("Sel.")) + 24);
    seleccion->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    seleccion->setFixedHeight(seleccion->verticalHeader()->defaultSectionSize() * 14 +
                              seleccion->horizontalHeader()->sizeHint().height() + 4);
    seleccion->setMinimumWidth(seleccion->fontMetrics().horizontalAdvance(
                                   QStringLiteral("Atlético Madrid - Rayo Vallecano")) +
                               110);
    for (int f = 0; f < 14; ++f) {
        for (int c = 0; c < 2; ++c) {
            auto* item = new QTableWidgetItem;
            item->setTextAlignment(c == 1 ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
            seleccion->setItem(f, c, item);
        }
    }
    derecha->addWidget(seleccion);
    derecha->addStretch();
    caja->addLayout(derecha, 1);
}

int PaginaReducir::Nivel() const {
    for (std::size_t i = 0; i < opciones.size(); ++i) {
        if (opciones[i]->isChecked()) return static_cast<int>(i);
    }
    return 0;
}

PaginaBoletos::PaginaBoletos(QWidget* madre) : QWidget(madre) {
    setObjectName(QStringLiteral("PaginaBoletos"));
    auto* caja = new QVBoxLayout(this);
    caja->addWidget(Titulo(this, QStringLiteral("Generación de Boletos")));
    auto* jugada = new QGroupBox(QStringLiteral("Apuestas que se juegan"), this);
    auto* cajaJugada = new QHBoxLayout(jugada);
    condicionada = new QRadioButton(QStringLiteral("Condicionada"), jugada);
    condicionada->setObjectName(QStringLiteral("OpcionCondicionada"));
    reducida = new QRadioButton(QStringLiteral("Reducida"), jugada);
    reducida->setObjectName(QStringLiteral("OpcionReducida"));
    cajaJugada->addWidget(condicionada);
    cajaJugada->addWidget(reducida);
    cajaJugada->addStretch();
    caja->addWidget(jugada);
    auto* formulario = new QFormLayout;
    enTotal = CifraConRotulo(this, formulario, QStringLiteral("Apuestas que se juegan en total "),
                             QStringLiteral("ApuestasEnTotal"));
    probabilidades = new QPushButton(QStringLiteral("&Probabilidades de premio"), this);
    probabilidades->setObjectName(QStringLiteral("BotonProbabilidades"));
    probabilidades->setEnabled(false);
    formulario->addRow(QString(), probabilidades);
    auto* filaAjustar = new QHBoxLayout;
    campoAjustar = new QLineEdit(this);
    campoAjustar->setObjectName(QStringLiteral("CampoAjustar"));
    campoAjustar->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,7}")), this));
    campoAjustar->setMaximumWidth(
        campoAjustar->fontMetrics().horizontalAdvance(QStringLiteral("00000000")) + 16);
    filaAjustar->addWidget(campoAjustar);
    ajustar = Boton(this, filaAjustar, QStringLiteral("Ajustar"), QStringLiteral("BotonAjustar"));
    detener =
        Boton(this, filaAjustar, QStringLiteral("&Detener"), QStringLiteral("BotonDetenerAjuste"));
    detener->setEnabled(false);
    filaAjustar->addStretch();
    formulario->addRow(QStringLiteral("Ajustar nº de apuestas a:"), filaAjustar);
    caja->addLayout(formulario);
    auto* mandatos = new QGroupBox(QStringLiteral("Salida"), this);
    auto* cajaMandatos = new QGridLayout(mandatos);
    const auto mandato = [mandatos, cajaMandatos](const char* texto, const char* nombre, int fila,
                                                  int columna) {
        auto* b = new QPushButton(QString::fromUtf8(texto), mandatos);
        b->setObjectName(QString::fromUtf8(nombre));
        b->setEnabled(false);
        cajaMandatos->addWidget(b, fila, columna);
        return b;
    };
    imprimirBoletos = mandato("Imprimir en Boletos", "BotonImprimirBoletos", 0, 0);
    imprimirPapel = mandato("Imprimir en papel blanco", "BotonImprimirPapel", 0, 1);
    oficial = mandato("Generar archivo &Oficial", "BotonArchivoOficial", 1, 0);
    txt = mandato("Generar archivo txt", "BotonArchivoTxt", 1, 1);
    auto* nota = new QLabel(QStringLiteral("Se genera archivo oficial JSON. Mínimo 100 columnas. "
                                           "Validación por soporte magnético."),
                            mandatos);
    nota->setWordWrap(true);
    cajaMandatos->addWidget(nota, 2, 0, 1, 2);
    eliminarManual = mandato("Eliminar columnas manual.", "BotonEliminarManual", 3, 0);
    anadirManual = mandato("Añadir columnas manual.", "BotonAnadirManual", 3, 1);
    caja->addWidget(mandatos);
    caja->addStretch();
}

}  // namespace quinteva::ui
