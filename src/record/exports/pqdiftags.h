#pragma once

#include "record/exports/pqdifid.h"

// Identifiers of PQDIF (IEEE 1159.3), as far as recordings need them.

namespace PqdifTag {

inline constexpr PqdifId kSignature = pqdifId("4a111440-e49f-11cf-9900-505144494600");

// Records
inline constexpr PqdifId kContainerRecord = pqdifId("89738606-f1c3-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kDataSourceRecord = pqdifId("89738619-f1c3-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSettingsRecord = pqdifId("b48d858c-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kObservationRecord = pqdifId("8973861a-f1c3-11cf-9d89-0080c72e70a3");

// Container
inline constexpr PqdifId kVersionInfo = pqdifId("89738607-f1c3-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kFileName = pqdifId("89738608-f1c3-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kCreation = pqdifId("89738609-f1c3-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kCompressionStyleID = pqdifId("8973861b-f1c3-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kCompressionAlgorithmID = pqdifId("8973861c-f1c3-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kApplication = pqdifId("89738623-f1c3-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kNotes = pqdifId("89738617-f1c3-11cf-9d89-0080c72e70a3");

// Data source
inline constexpr PqdifId kDataSourceTypeID = pqdifId("b48d8581-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kVendorID = pqdifId("b48d8582-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSerialNumberDS = pqdifId("b48d8585-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kVersionDS = pqdifId("b48d8586-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kNameDS = pqdifId("b48d8587-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kOwnerDS = pqdifId("b48d8588-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kLocationDS = pqdifId("b48d8589-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kTimeZoneDS = pqdifId("b48d858a-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kEffective = pqdifId("62f28183-f9c4-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kChannelDefns = pqdifId("b48d858d-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kOneChannelDefn = pqdifId("b48d858e-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kChannelName = pqdifId("b48d8590-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kPhaseID = pqdifId("b48d8591-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kQuantityTypeID = pqdifId("b48d8592-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kQuantityMeasuredID = pqdifId("c690e872-f755-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesDefns = pqdifId("b48d8598-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kOneSeriesDefn = pqdifId("b48d859a-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kValueTypeID = pqdifId("b48d859c-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kQuantityUnitsID = pqdifId("b48d859b-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kQuantityCharacteristicID = pqdifId("3d786f9e-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kStorageMethodID = pqdifId("b48d85a1-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesNominalQuantity = pqdifId("0fa118c8-cb4a-11d2-b30b-fe25cb9a1760");
inline constexpr PqdifId kCustomSourceInfo = pqdifId("b48d8584-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kInstrumentTypeID = pqdifId("3d786f82-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kInstrumentModelName = pqdifId("3d786f83-f76e-11cf-9d89-0080c72e70a3");

// Settings
inline constexpr PqdifId kTimeInstalled = pqdifId("3d786f85-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kUseCalibration = pqdifId("62f28180-f9c4-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kUseTransducer = pqdifId("62f28181-f9c4-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kNominalFrequency = pqdifId("0fa118c3-cb4a-11d2-b30b-fe25cb9a1760");
inline constexpr PqdifId kSettingPhysicalConnection = pqdifId("9f256ee0-803b-11d3-b92f-0050da2b1f4d");
inline constexpr PqdifId kChannelSettingsArray = pqdifId("62f28182-f9c4-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kOneChannelSetting = pqdifId("3d786f9a-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kChannelDefnIdx = pqdifId("b48d858f-f5f5-11cf-9d89-0080c72e70a3");

// Observations
inline constexpr PqdifId kObservationName = pqdifId("3d786f8a-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kTimeCreate = pqdifId("3d786f8b-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kTimeStart = pqdifId("3d786f8c-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kTriggerMethodID = pqdifId("3d786f8d-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kTimeTriggered = pqdifId("3d786f8e-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kObservationSerial = pqdifId("3d786f90-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kObservationAggregationSerial = pqdifId("89738621-f1c3-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kDisturbanceCategoryID = pqdifId("b48d8597-f5f5-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kCharactDuration = pqdifId("2747d444-2bd0-11d2-ae42-0060083a2628");
inline constexpr PqdifId kChannelInstances = pqdifId("3d786f91-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kOneChannelInst = pqdifId("3d786f92-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kChannelGroupID = pqdifId("f90de218-e67b-4cf1-a295-b021a2d46767");
inline constexpr PqdifId kSeriesInstances = pqdifId("3d786f93-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kOneSeriesInstance = pqdifId("3d786f94-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesValues = pqdifId("3d786f99-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesScale = pqdifId("3d786f96-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesOffset = pqdifId("3d786f97-f76e-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesShareChannelIdx = pqdifId("8973861f-f1c3-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesShareSeriesIdx = pqdifId("89738620-f1c3-11cf-9d89-0080c72e70a3");

} // namespace PqdifTag

// Values of identifiers: types of quantities and series, characteristics, kinds of disturbances.

namespace PqdifValue {

inline constexpr PqdifId kDataSourceMeasure = pqdifId("e6b51730-f747-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kVendorNone = pqdifId("e6b51701-f747-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kPowerQualityMeter = pqdifId("e6b51737-f747-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kWaveform = pqdifId("67f6af80-f753-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kValueLog = pqdifId("67f6af82-f753-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kMagnitudeDurationTime = pqdifId("67f6af8d-f753-11cf-9d89-0080c72e70a3");

// Series
inline constexpr PqdifId kSeriesTime = pqdifId("c690e862-f755-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesVal = pqdifId("67f6af97-f753-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesMin = pqdifId("67f6af98-f753-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesMax = pqdifId("67f6af99-f753-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesAvg = pqdifId("67f6af9a-f753-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kSeriesDuration = pqdifId("c690e863-f755-11cf-9d89-0080c72e70a3");

// Characteristics
inline constexpr PqdifId kQcNone = pqdifId("a6b31adf-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcInstantaneous = pqdifId("a6b31add-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcRms = pqdifId("a6b31ae5-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcPeak = pqdifId("a6b31ae2-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcFrequency = pqdifId("07ef68af-9ff5-11d2-b30b-006008b37183");
inline constexpr PqdifId kQcCrestFactor = pqdifId("a6b31ad2-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcSpectra = pqdifId("a6b31ae9-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcSpectraHgroup = pqdifId("53be6ba8-0789-455b-9a95-da128683dda7");
inline constexpr PqdifId kQcSpectraIgroup = pqdifId("5e51e006-9c95-4c5e-878f-7ca87c0d2a0e");
inline constexpr PqdifId kQcHrms = pqdifId("a6b31adc-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcTotalThd = pqdifId("a6b31aec-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcS2s1 = pqdifId("a6b31ae8-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcS0s1 = pqdifId("a6b31ae7-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcSpos = pqdifId("a6b31aea-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcSneg = pqdifId("d71a4b91-3c92-11d4-9f2c-002078e0b723");
inline constexpr PqdifId kQcSzero = pqdifId("d71a4b92-3c92-11d4-9f2c-002078e0b723");
inline constexpr PqdifId kQcFlkrPst = pqdifId("515bf320-71ca-11d4-a4b3-444553540000");
inline constexpr PqdifId kQcFlkrPlt = pqdifId("515bf321-71ca-11d4-a4b3-444553540000");
inline constexpr PqdifId kQcP = pqdifId("a6b31ae1-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcQ = pqdifId("a6b31ae4-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcS = pqdifId("a6b31ae6-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcPf = pqdifId("a6b31ae3-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcDf = pqdifId("a6b31ad3-b451-11d1-ae17-0060083a2628");
inline constexpr PqdifId kQcAngleFund = pqdifId("672d030f-7810-11d4-a4b3-444553540000");
inline constexpr PqdifId kQcPIntg = pqdifId("07ef68a6-9ff5-11d2-b30b-006008b37183");
inline constexpr PqdifId kQcQIntg = pqdifId("07ef68a9-9ff5-11d2-b30b-006008b37183");
inline constexpr PqdifId kQcSIntg = pqdifId("07ef68ac-9ff5-11d2-b30b-006008b37183");

// Disturbances
inline constexpr PqdifId kDisturbNone = pqdifId("67f6af8f-f753-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kDisturbTransient = pqdifId("67f6af90-f753-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kDisturbShortdurInstantSag = pqdifId("dd56ef6a-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbShortdurInstantSwell = pqdifId("dd56ef6b-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbShortdurMomentSag = pqdifId("dd56ef6e-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbShortdurMomentSwell = pqdifId("dd56ef6f-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbShortdurTempSag = pqdifId("dd56ef72-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbShortdurTempSwell = pqdifId("dd56ef73-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbLongdurSag = pqdifId("dd56ef75-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbLongdurSwell = pqdifId("dd56ef76-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbShortdurMomentInterrupt = pqdifId("dd56ef6d-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbShortdurTempInterrupt = pqdifId("dd56ef71-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbLongdurInterrupt = pqdifId("dd56ef74-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbImbalance = pqdifId("dd56ef77-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbPowerfreqvariation = pqdifId("dd56ef7e-7edd-11d2-b30a-00609789d193");
inline constexpr PqdifId kDisturbVoltagefluctuation = pqdifId("67f6af93-f753-11cf-9d89-0080c72e70a3");
inline constexpr PqdifId kDisturbWavedistortHarmonic = pqdifId("dd56ef79-7edd-11d2-b30a-00609789d193");

} // namespace PqdifValue
