#pragma once

#include <QString>

#include "headless/HeadlessControl.h"

// The time box with the mask "##:##:00": four places for hours and minutes, each a digit or
// empty ("_"); the seconds are always 00. Change follows every change of the value, by code
// or by the user; KeyDown only the user's typing.
class HeadlessTimeBox : public HeadlessControl, public ITimeBox {
  public:
    HeadlessTimeBox(const ControlDecl& decl, HeadlessWindow& window);
    // "08:30:00", "_5:30:00", "__:__:00".
    QString Text() const override;
    // The digits entered, in order: "0830", "530", "".
    QString Ziffern() const override;
    // Hours and minutes from the text in order: its digits (and "_" for an empty place) fill
    // the four places, other characters are skipped, places not reached stay empty.
    // "0830", "08:30", "08:30:45" all give "08:30:00". Change when the value differs.
    void setText(const QString& text) override;

    // The four places, "_" for an empty one: "0830", "_530", "____".
    QString places() const { return places_; }

    // Typed hours and minutes "hh:mm" ("_" for an empty place): KeyDown, then Change.
    void userTime(const QString& hhmm) override;
    // The same as userTime.
    void userType(const QString& text) override;

    // The four places a text gives, as setText reads it.
    static QString placesOf(const QString& text);

  private:
    QString places_;
};
