#include "l3sm/DatabaseOptions.h"

namespace Cli {

void defineCredentials( VerbOptions & verb, Live::DatabaseCredentials & into ) {
   verb.text(
      "--database-ca", into.authorities, "etcds: the authorities that may have signed its certificate", "FILE" );
   verb.text( "--database-cert", into.certificate, "etcds: the certificate to come with", "FILE" );
   verb.text( "--database-key", into.key, "etcds: the key of that certificate", "FILE" );
   verb.text( "--database-user", into.user, "etcd: sign on as this user", "NAME" );
   verb.text( "--database-password", into.passwordFile, "etcd: the user's password is the first line there", "FILE" );
}

} // namespace Cli
