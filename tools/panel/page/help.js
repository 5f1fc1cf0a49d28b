'use strict';
// Where the guide speaks of a page, or of a sub page: by the name of its class, which comes with its picture.
const helpOfPage = {
  MenuPage: 'guide/pages.html#menu',
  VifPage: 'guide/pages.html#voltsampshertz',
  dswell: 'guide/pages.html#dipsswells',
  harm: 'guide/pages.html#harmonics',
  powen: 'guide/pages.html#powerenergy',
  flicker: 'guide/pages.html#flicker',
  unbalan: 'guide/pages.html#unbalance',
  trans: 'guide/pages.html#transients',
  InrushPage: 'guide/pages.html#inrush',
  MonitorPage: 'user-guide.html#judge-a-supply',
  ScopePage: 'guide/pages.html#scope',
  SetupPage: 'guide/pages.html#setup',
  SetupConfigPage: 'guide/pages.html#wiring',
  SetupConfigEnterPage: 'guide/pages.html#wiring',
  SetupClamps: 'guide/pages.html#clamps-and-transformers',
  SetupLimits: 'guide/pages.html#limits',
  SetupFunctions: 'guide/pages.html#functions',
  SetupKFactor: 'guide/pages.html#functions',
  SetupFlicker: 'guide/pages.html#functions',
  SetupTransient: 'guide/pages.html#functions',
  SetupInrush: 'guide/pages.html#functions',
  SetupMainsSig: 'guide/pages.html#functions',
  MemoryPage: 'user-guide.html#what-was-saved-onto-a-usb-disk',
  Wave: 'user-guide.html#capture-waveforms',
  MainsSignaling: 'guide/pages.html#mains-signaling',
  PowerInverter: 'guide/pages.html#power-inverter',
  RecordPqa2Page: 'user-guide.html#record-a-week',
  LoggerPage: 'guide/pages.html#logger',
  UserPage: 'guide/pages.html#user',
};

function helpFor(page, part) {
  return helpOfPage[part] || helpOfPage[page] || 'user-guide.html';
}
