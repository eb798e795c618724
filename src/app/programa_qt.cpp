#include "app/programa_qt.h"

#include "app/servicos_qt.h"
#include "document/ciclo.h"
#include "document/frm_calc_tramelo.h"
#include "document/janelas.h"
#include "plataforma/ambiente.h"
#include "plataforma/caixas_view.h"
#include "shell/barras.h"
#include "shell/mdi_menu.h"
#include "shell/mdi_menu_view.h"
#include "shell/mod_base.h"
#include "shell/recentes.h"
#include "shell/registro.h"
#include "sizing/catalogo.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>

namespace tramelo {

ProgramaQt::ProgramaQt(bool servicosDoUsuario) {
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    if (QApplication::windowIcon().isNull())
        QApplication::setWindowIcon(QIcon(QStringLiteral(":/tramelo/tramelo.png")));
    DefinePastas(PastaDadosPrograma(QCoreApplication::applicationDirPath().toStdString()));
    DefinePastasRegistro(PastaConfiguracaoUsuario(), modBase().PastaPrograma);
    CarregaCatalogo();

    sistema_ = std::make_unique<SistemaQt>();
    ambiente().sistema = sistema_.get();
    mdiMenu() = MdiMenu{};
    MdiMenu_Load();
    janela_ = std::make_unique<MdiMenuView>();
    if (servicosDoUsuario) {
        caixas_ = std::make_unique<CaixasQt>(janela_.get());
        dialogos_ = std::make_unique<DialogosQt>(janela_.get());
        ambiente().caixas = caixas_.get();
        ambiente().dialogos = dialogos_.get();
    }
    janelasCalculo() = janela_.get();
    SairDoPrograma = [this] { janela_->close(); };
    janela_->aoFechar = [this] {
        MdiMenu_QueryUnload();
        // Each calculation asks about its unsaved changes; one cancel stops.
        while (!Calculos().empty())
            if (!DescarregaCalculo(*Calculos().front())) return false;
        janela_->GuardaLugar();
        MdiMenu_Unload();
        return true;
    };
}

ProgramaQt::~ProgramaQt() {
    // The windows go first, while the records they show still exist.
    janelasCalculo() = nullptr;
    SairDoPrograma = nullptr;
    janela_.reset();
    filhoAtivo() = {};
    Calculos().clear();
    if (caixas_) ambiente().caixas = nullptr;
    if (dialogos_) ambiente().dialogos = nullptr;
    ambiente().sistema = nullptr;
}

void ProgramaQt::Inicia() {
    if (mdiMenu().WindowState == 2) janela_->showMaximized();
    else janela_->show();
    Atualiza(mdiMenu());
    AbreCalculo(false, std::string());
    janela_->SincronizaTudo();
}

int ExecutaPrograma(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tramelo"));
    QApplication::setApplicationVersion(QStringLiteral("2.0.1"));
    ProgramaQt programa;
    programa.Inicia();
    return app.exec();
}

} // namespace tramelo
