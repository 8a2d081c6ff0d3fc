#!/bin/sh
# Makes the certificates of the local server again. One key serves them all and is public: they protect nothing.
#   autorite   what the tests trust
#   sur        signed by it, for "localhost"
#   inconnu    signed by nobody else
set -e
cd "$(dirname "$0")"
travail=$(mktemp -d)
trap 'rm -r "$travail"' EXIT
cat >"$travail/conf" <<FIN
[ca]
database = $travail/index
serial = $travail/serie
new_certs_dir = $travail
default_md = sha256
policy = libre
[libre]
commonName = supplied
[req]
distinguished_name = nom
[nom]
[autorite]
basicConstraints = critical, CA:TRUE
[local]
subjectAltName = DNS:localhost
FIN
: >"$travail/index"
echo 01 >"$travail/serie"
openssl ecparam -genkey -name prime256v1 -noout | openssl pkcs8 -topk8 -nocrypt -out cle.pem

certificat() { # name, extensions, how it is signed
    nom=$1 extensions=$2
    shift 2
    openssl req -new -config "$travail/conf" -key cle.pem -subj "/CN=Quillet $nom" -out "$travail/$nom.csr"
    openssl ca -name ca -batch -notext -config "$travail/conf" -keyfile cle.pem -in "$travail/$nom.csr" -out "$nom.pem" \
        -startdate 20190101000000Z -enddate 21200101000000Z -extensions "$extensions" "$@"
}
certificat autorite autorite -selfsign
certificat sur local -cert autorite.pem
certificat inconnu local -selfsign
