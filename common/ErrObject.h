#pragma once

#include <QString>
#include <exception>
#include <string>

// The state of the error that is passing through a procedure: what the classic runtime kept
// in its Err object. Erl is the line number of the failing statement, 0 where the procedure
// carries no line numbers.
struct ErrObject {
    long Number = 0;
    QString Description;
    QString Source;
    long Erl = 0;

    void Clear() { *this = ErrObject{}; }
};

// Every failure of a library call or of the system's own code is thrown as this exception;
// the error exit of the procedure that catches it turns it into one report.
class RaisedError : public std::exception {
  public:
    explicit RaisedError(ErrObject err)
        : err_(std::move(err)), what_(err_.Description.toStdString()) {}
    RaisedError(long number, const QString& description, const QString& source = {}, long erl = 0)
        : RaisedError(ErrObject{number, description, source, erl}) {}

    const ErrObject& err() const { return err_; }
    const char* what() const noexcept override { return what_.c_str(); }

  private:
    ErrObject err_;
    std::string what_;
};

// Error numbers the stand-ins raise, with the texts of the classic runtime.
namespace ErrNumber {
constexpr long Overflow = 6;            // "Überlauf"
constexpr long TypeMismatch = 13;       // "Typen unverträglich"
constexpr long CannotCreate = 429;      // object of a library could not be created
constexpr long ObjectRequired = 424;    // an object was missing
constexpr long Database = -2147217900;  // a statement failed on the database
constexpr long Internal = 440;          // any other failure of a library call
}  // namespace ErrNumber
