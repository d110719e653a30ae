#include "scenario/ScenarioHost.h"

#include "common/ErrObject.h"
#include "common/Services.h"
#include "scenario/ScenarioError.h"

namespace {

const QStringList kNumberFields = {
    QStringLiteral("ManId"),      QStringLiteral("MitId"),     QStringLiteral("ManNr"),
    QStringLiteral("ZeitId"),     QStringLiteral("AktenJahr"), QStringLiteral("DocId"),
    QStringLiteral("DocVorlKey"), QStringLiteral("DocVorlId"), QStringLiteral("AktenTyp")};
const QStringList kTextFields = {QStringLiteral("ManKurz"), QStringLiteral("PropString")};

std::shared_ptr<HostObject> createRegistered(const QString& progId) {
    const auto& classes = services().hostClasses;
    const auto it = classes.find(progId);
    if (it == classes.end() || !it->second) {
        throw RaisedError(ErrNumber::CannotCreate,
                          QStringLiteral("Die Klasse %1 ist nicht registriert.").arg(progId),
                          QStringLiteral("ZPKyBasisAbruf"));
    }
    auto object = it->second();
    if (!object) {
        throw RaisedError(ErrNumber::CannotCreate,
                          QStringLiteral("Die Klasse %1 gibt kein Objekt.").arg(progId),
                          QStringLiteral("ZPKyBasisAbruf"));
    }
    return object;
}

}  // namespace

void ScenarioFrame::ZeigeFortschritt(const QString& sHinweis, const QString& sEndeHinweis) {
    state_.progress = std::make_pair(sHinweis, sEndeHinweis);
}

void ScenarioBasis::Anmelden(UIInterfaceClass*, const QString& sDokumentProgId,
                             const QString& sApplikationProgId, long) {
    application_ = createRegistered(sApplikationProgId);
    document_ = createRegistered(sDokumentProgId);
    state_->application = application_;
    state_->document = document_;
}

void ScenarioBasis::BasisNotify(UIInterfaceClass*, long, long&, QVariant&, bool& bOk) {
    bOk = state_->basisNotifyAnswer;
}

void ScenarioBasis::IstBeendet(bool& bBeendet) {
    bBeendet = state_->istBeendetAnswer;
}

void ScenarioBasis::MenuStatus(const QString& sTool, const QString& sBand, bool bEnabled,
                               long& lErgebnis) {
    state_->menu[sBand + QLatin1Char('.') + sTool] = bEnabled;
    lErgebnis = 0;
}

void HostNotifyTarget::gNotify(UIInterfaceClass*, long lCode, long&, QVariant& vParam) {
    state_->notified << lCode;
    if (lCode == 402) {
        ++state_->failedNotifications;
    }
    if (lCode == 503) {
        vParam = state_->docName;
    }
}

ScenarioDokumentDaten::ScenarioDokumentDaten() {
    for (const QString& f : kNumberFields) {
        fields_.insert(f, qlonglong(0));
    }
    for (const QString& f : kTextFields) {
        fields_.insert(f, QString());
    }
    fields_[QStringLiteral("ManId")] = qlonglong(1);
    fields_[QStringLiteral("MitId")] = qlonglong(1);
    fields_[QStringLiteral("ManNr")] = qlonglong(1);
    fields_[QStringLiteral("ManKurz")] = QStringLiteral("M1");
    fields_[QStringLiteral("AktenTyp")] = qlonglong(4);
}

QVariant ScenarioDokumentDaten::Lesen(const QString& name) const {
    const auto it = fields_.constFind(name);
    if (it == fields_.constEnd()) {
        throw RaisedError(438,
                          QStringLiteral("Objekt unterstützt diese Eigenschaft oder Methode nicht"),
                          QStringLiteral("DokumentDaten"));
    }
    return *it;
}

bool ScenarioDokumentDaten::set(const QString& name, const QString& value) {
    if (kTextFields.contains(name)) {
        fields_[name] = value;
        return true;
    }
    if (!kNumberFields.contains(name)) {
        return false;
    }
    bool ok = false;
    const qlonglong n = value.toLongLong(&ok);
    if (!ok) {
        scenarioFail(QStringLiteral("context: %1 takes a whole number, not %2").arg(name, value));
    }
    fields_[name] = n;
    return true;
}
