#pragma once

#include <QProcess>
#include <QString>

namespace orvtour
{

/// The real service, as a program of its own on a free loopback port, with a data directory that the caller chose.
class ServiceProcess
{
public:
    /// `program` is the path of orvanta-cloud; `data` is made where it is missing.
    ServiceProcess(QString program, QString data);
    ~ServiceProcess(); ///< stops the service
    ServiceProcess(ServiceProcess const&) = delete;
    ServiceProcess& operator=(ServiceProcess const&) = delete;

    /// Makes an account; false where the program says no (errorText then holds its words).
    bool addUser(QString const& email, QString const& name, QString const& password);

    /// Starts serving and waits for the ready line. `port` 0 takes a free one; a port given again brings the service
    /// back under its old address.
    bool start(int port = 0);
    /// Asks the service to end and waits for it; true where it ended cleanly.
    bool stop();

    QString const& url() const { return address; } ///< of the last start, without a closing slash
    int port() const;
    QString const& errorText() const { return error; }

private:
    QString program;
    QString data;
    QString address;
    QString error;
    QProcess process;
};

} // namespace orvtour
