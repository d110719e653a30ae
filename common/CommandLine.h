#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QList>
#include <QString>

class QCoreApplication;

// A program's command line with its help and its errors in German. QCommandLineParser writes
// both in English, so this reads the arguments with it but writes every text itself: the help
// (-h, --help) lists the options in the order given, each with its value and description.
class CommandLine {
  public:
    CommandLine(const QString& description, const QList<QCommandLineOption>& options);

    // Reads the program's arguments. Prints the help and ends the program with 0 when it is
    // asked for, prints the error and ends it with 1 when the arguments are wrong.
    void process(const QCoreApplication& app);

    // The help of the program named sProgramm.
    QString helpText(const QString& sProgramm) const;

    // The error of the last reading of arguments, in German; empty without one.
    QString errorText() const;

    // Reads arguments (the program's name first); false when they are wrong.
    bool parse(const QStringList& arguments);

    const QCommandLineParser& parser() const { return mParser; }
    bool helpAsked() const { return mParser.isSet(mHelp); }

  private:
    QCommandLineParser mParser;
    QCommandLineOption mHelp;
    QList<QCommandLineOption> mOptions;
    QString msBeschreibung;
};
