#!/bin/sh
# What a lost wireless network leaves behind: its addresses and routes, the default route first.
ip route flush dev wlan0
ip address flush dev wlan0
