#pragma once

#include <QString>
#include <memory>

#include "app/ClassTrace.h"
#include "common/Host.h"

class PropertyBag;

// The context of all work: the client, the staff member, the kind of installation and the
// document's name. Filled by the document object from the host's document data; shared by
// the application object and the controller, which only read it, apart from psDocName.
class cProperties : public virtual HostObject, public std::enable_shared_from_this<cProperties> {
  public:
    // Class_Initialize and Class_Terminate.
    cProperties();
    ~cProperties() override;
    cProperties(const cProperties&) = delete;
    cProperties& operator=(const cProperties&) = delete;

    QString TypeName() const override { return QStringLiteral("cProperties"); }

    long plContainer = 0;
    long plManId = 0;
    long plMitId = 0;
    long plManNr = 0;
    QString psManKurz;
    long plZeitId = 0;
    long plDocId = 0;
    long plDocVorlKey = 0;
    long plDocVorlId = 0;
    long plAktenJahr = 0;
    QString psDocName;
    QString psPropString;
    bool pbPropTemp = false;
    // 1 and 2: an installation of clients only or offices only; 4 both.
    long plAktenTyp = 0;
    // The host's document data object.
    std::shared_ptr<HostObject> poDocInfo;

    void gConstructor();
    void gDestructor();
    // Takes the fields from a stored property text; false for an empty text.
    bool gbPropertiesAusStringLesen(const QString& sDokInfo);
    bool gbPropertiesInStringSchreiben(QString& sText);
    // Always false: the record keeps no field in its property text, so nothing can differ.
    bool gbPropertiesGeaendert(const QString& sDokInfo);

  private:
    void mRegisterFields();

    std::unique_ptr<PropertyBag> moPropertyBag;
    ClassTrace moTrace{QStringLiteral("cProperties")};
};
