#include "app/servicos_qt.h"

#include <QApplication>
#include <QCheckBox>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QUrl>
#include <QVBoxLayout>

namespace tramelo {

void SistemaQt::DoEvents() {
    QCoreApplication::processEvents();
}

void SistemaQt::MousePointer(int forma) {
    if (forma == vbHourglass && !ocupado_) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        ocupado_ = true;
    } else if (forma != vbHourglass && ocupado_) {
        QApplication::restoreOverrideCursor();
        ocupado_ = false;
    }
}

bool SistemaQt::Abre(const std::string& caminho) {
    QString q = QString::fromStdString(caminho);
    QUrl url = q.contains(QStringLiteral("://")) ? QUrl(q) : QUrl::fromLocalFile(q);
    return QDesktopServices::openUrl(url);
}

namespace {

// "Descrição (*.ext)|*.ext|..." as the platform writes a filter, to Qt's
// "Descrição (*.ext);;...".
QString FiltroQt(const std::string& filtro) {
    QStringList partes = QString::fromStdString(filtro).split(QLatin1Char('|'));
    QStringList saida;
    for (int i = 0; i + 1 < partes.size(); i += 2) {
        QString descricao = partes[i];
        if (!descricao.contains(QLatin1Char('(')))
            descricao += QStringLiteral(" (") + partes[i + 1] + QLatin1Char(')');
        saida << descricao;
    }
    return saida.join(QStringLiteral(";;"));
}

} // namespace

bool DialogosQt::Mostra(ConfiguraDialogo& d, bool salvar) {
    QFileDialog dialogo(dono_, QString::fromStdString(d.DialogTitle));
    dialogo.setOption(QFileDialog::DontUseNativeDialog, true);
    dialogo.setAcceptMode(salvar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogo.setFileMode(salvar ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialogo.setNameFilter(FiltroQt(d.Filter));
    // No default suffix: a name typed without an extension is kept as typed.
    dialogo.setOption(QFileDialog::DontConfirmOverwrite, !(d.Flags & cdlOFNOverwritePrompt));
    QString pasta = QString::fromStdString(d.InitDir);
    if (!pasta.isEmpty() && QDir(pasta).exists()) dialogo.setDirectory(pasta);
    if (!d.FileName.empty()) dialogo.selectFile(QString::fromStdString(d.FileName));
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return false;
    d.FileName = dialogo.selectedFiles().constFirst().toStdString();
    return true;
}

QPrinter& ImpressoraDoPrograma() {
    static QPrinter impressora(QPrinter::HighResolution);
    return impressora;
}

bool DialogosQt::ShowPrinter(ConfiguraDialogo& d) {
    QPrinter& impressora = ImpressoraDoPrograma();
    QPrintDialog dialogo(&impressora, dono_);
    dialogo.setWindowTitle(d.Flags & cdlPDPrintSetup ? QStringLiteral("Configurar impressão")
                                                     : QStringLiteral("Imprimir"));
    // No choice of a selection; printing to a file (PDF) stays offered, as
    // on every desktop here.
    dialogo.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialogo.setOption(QAbstractPrintDialog::PrintToFile, true);
    // The tab belongs to the dialog, which ends with this call.
    auto* aba = new QWidget(&dialogo);
    aba->setWindowTitle(QStringLiteral("ISO 5167-2"));
    auto* iso = new QCheckBox(
        QStringLiteral("Imprimir a verificação pela ISO 5167-2:2003 como segunda página"), aba);
    iso->setObjectName(QStringLiteral("chkSegundaPaginaIso"));
    iso->setChecked(d.SegundaPaginaIso);
    auto* pilha = new QVBoxLayout(aba);
    pilha->addWidget(iso);
    pilha->addStretch();
    dialogo.setOptionTabs({aba});
    if (dialogo.exec() != QDialog::Accepted) return false;
    d.Copies = impressora.copyCount();
    d.SegundaPaginaIso = iso->isChecked();
    return true;
}

bool DialogosQt::ShowOpen(ConfiguraDialogo& d) {
    return Mostra(d, false);
}
bool DialogosQt::ShowSave(ConfiguraDialogo& d) {
    return Mostra(d, true);
}

} // namespace tramelo
