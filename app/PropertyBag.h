#pragma once

#include <QString>

// The host's property object, which maps a document's fields from and into its stored
// property text. The job agent document registers no fields, so the object only keeps the
// text it was given and gives it back.
class PropertyBag {
  public:
    void Initialisieren(long lVersion, const QString& sText);
    // bLesen true takes the fields from sText; false writes them into sText.
    void Abbilden(bool bLesen, QString& sText);
    void Freigeben();

  private:
    long lVersion_ = 0;
    QString sText_;
};
