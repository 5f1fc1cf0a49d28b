#!/bin/sh
# networking.sh INTERFACE: makes the system's description of a wired interface out of what was set on the instrument's
# page (/mnt/userfs/config/INTERFACE.conf). "/etc/init.d/networking restart" then puts it into use.
set -eu
interface=${1:?networking.sh: which interface?}
case "$interface" in *[!a-z0-9]*) echo "networking.sh: no interface is called $interface" >&2; exit 2 ;; esac
settings=${QUVERA_ROOT:-}/mnt/userfs/config/$interface.conf
target=${QUVERA_ROOT:-}/var/lib/quvera/interfaces

# value KEY PATTERN DEFAULT: what stands there in a form that cannot become another line of the description.
value()
{
    text=$(sed -n "s/^$1 *= *//p" "$settings" 2>/dev/null | tail -n 1 | tr -d '\r')
    if printf '%s' "$text" | grep -Eqx "$2"; then printf '%s' "$text"; else printf '%s' "$3"; fi
}

address='([0-9]{1,3}\.){3}[0-9]{1,3}'
hardware=$(value MAC '([0-9A-Fa-f]{2}:){5}[0-9A-Fa-f]{2}' '')
{
    echo "auto $interface"
    if [ "$(value USE_DHCP '[0-9]+' 1)" != 0 ]; then
        echo "iface $interface inet dhcp"
    else
        echo "iface $interface inet static"
        echo "    address $(value IPADDR "$address" 192.168.2.100)"
        echo "    netmask $(value NETMASK "$address" 255.255.255.0)"
        echo "    gateway $(value GATEWAY "$address" 192.168.2.1)"
    fi
    [ -z "$hardware" ] || echo "    hwaddress ether $hardware"
} >"$target.new"
mv -f "$target.new" "$target"
