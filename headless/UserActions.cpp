#include "headless/UserActions.h"

#include "common/ErrObject.h"

void UserActions::unsupported(const char* action) const {
    throw RaisedError(ErrNumber::Internal,
                      QStringLiteral("%1 kann nicht: %2").arg(describe(), QLatin1String(action)),
                      QStringLiteral("headless"));
}

void UserActions::userClick() {
    unsupported("click");
}
void UserActions::userType(const QString&) {
    unsupported("type");
}
void UserActions::userCheck(int) {
    unsupported("check");
}
void UserActions::userSelect(long) {
    unsupported("select");
}
void UserActions::userDate(std::optional<QDate>) {
    unsupported("date");
}
void UserActions::userTime(const QString&) {
    unsupported("time");
}
void UserActions::userKey(int, int) {
    unsupported("key");
}
void UserActions::userGridClick(int, int, bool) {
    unsupported("grid click");
}
void UserActions::userGridToggle(int, int) {
    unsupported("grid toggle");
}
void UserActions::userTab(int) {
    unsupported("tab");
}
void UserActions::userBrowserSelect(const QList<int>&) {
    unsupported("browser select");
}
void UserActions::userBrowserOpen(int) {
    unsupported("browser open");
}
void UserActions::userTool(const QString&, const QString&) {
    unsupported("tool");
}
