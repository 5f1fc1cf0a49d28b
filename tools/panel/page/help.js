'use strict';
// Where the guide speaks of a page: by the name of its class, which comes with its picture.
const helpOfPage = {
  MenuPage: 'user-guide.html',
  VifPage: 'user-guide.html#does-it-look-right',
  dswell: 'scope-and-trend-pages.html#half-cycle-trends',
  harm: 'user-guide.html#does-it-look-right',
  powen: 'user-guide.html#does-it-look-right',
  flicker: 'user-guide.html#judge-a-supply',
  unbalan: 'user-guide.html#does-it-look-right',
  trans: 'scope-and-trend-pages.html#transients',
  InrushPage: 'user-guide.html#catch-an-inrush',
  MonitorPage: 'user-guide.html#judge-a-supply',
  ScopePage: 'scope-and-trend-pages.html#values-of-samples',
  SetupPage: 'setup-pages.html',
  MemoryPage: 'user-guide.html#what-was-saved-onto-a-usb-disk',
  Wave: 'user-guide.html#capture-waveforms',
  MainsSignaling: 'user-guide.html',
  PowerInverter: 'power-inverter.html',
  RecordPqa2Page: 'user-guide.html#record-a-week',
  UserPage: 'user-guide.html#language-colours-clock-network',
};

function helpFor(page) {
  return helpOfPage[page] || 'user-guide.html';
}
