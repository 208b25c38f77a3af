/// \file
/// Everything the library offers, in one include: the tree interface and its helpers, the
/// foundation types, every enumeration, the client, monitoring and service-message records, the
/// process services and the version.
#pragma once

#include <wlccw/export.hpp>
#include <wlccw/version.hpp>

// The host's tree interface and the RAII owners over it.
#include <wlccw/cfg/elements.hpp>
#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

// Foundation types.
#include <wlccw/common/IpAddr.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/common/Timer.hpp>
#include <wlccw/common/Version.hpp>
#include <wlccw/common/containers.hpp>
#include <wlccw/common/errors.hpp>
#include <wlccw/common/hash.hpp>
#include <wlccw/common/html.hpp>
#include <wlccw/common/tools.hpp>

// Enumeration dictionaries.
#include <wlccw/enums/APState.hpp>
#include <wlccw/enums/ApIndicationAction.hpp>
#include <wlccw/enums/ApProfileRadioBand.hpp>
#include <wlccw/enums/ApSaStage.hpp>
#include <wlccw/enums/AuthPortalClientStatus.hpp>
#include <wlccw/enums/ClientAuthAlgorithm.hpp>
#include <wlccw/enums/ClientConnectedEventType.hpp>
#include <wlccw/enums/ClientCportalEventType.hpp>
#include <wlccw/enums/ClientDisconnectedEventType.hpp>
#include <wlccw/enums/ClientEapMethod.hpp>
#include <wlccw/enums/ClientFailAuthStep.hpp>
#include <wlccw/enums/ClientFailEventType.hpp>
#include <wlccw/enums/ClientIpChangedEventType.hpp>
#include <wlccw/enums/ClientMacAuthEventType.hpp>
#include <wlccw/enums/ClientMacAuthReason.hpp>
#include <wlccw/enums/ClientMacAuthStatus.hpp>
#include <wlccw/enums/ClientPortalAuthStatus.hpp>
#include <wlccw/enums/ClientRoamingEventType.hpp>
#include <wlccw/enums/ClientWirelessMode.hpp>
#include <wlccw/enums/ClientWlanAuthMethod.hpp>
#include <wlccw/enums/ClientWlanAuthStatus.hpp>
#include <wlccw/enums/FwVersionChecked.hpp>
#include <wlccw/enums/IncomingConnections.hpp>
#include <wlccw/enums/IpcMsgCfgState.hpp>
#include <wlccw/enums/IpcMsgCheckApVerdict.hpp>
#include <wlccw/enums/IpcMsgStatus.hpp>
#include <wlccw/enums/IpcStopReason.hpp>
#include <wlccw/enums/MacAuthMode.hpp>
#include <wlccw/enums/MacFilterAction.hpp>
#include <wlccw/enums/PowerSupply.hpp>
#include <wlccw/enums/RadioBand.hpp>
#include <wlccw/enums/SaCertErrorCodes.hpp>
#include <wlccw/enums/SecurityMode.hpp>
#include <wlccw/enums/VelmoraMsgType.hpp>
#include <wlccw/enums/VelmoraRespStatus.hpp>
#include <wlccw/enums/VrrpRole.hpp>
#include <wlccw/enums/WidsClientBannedAuthMethod.hpp>
#include <wlccw/enums/WidsClientBannedEAPMethod.hpp>
#include <wlccw/enums/WidsDetectedRogueReason.hpp>
#include <wlccw/enums/WidsDosAttack.hpp>
#include <wlccw/enums/WidsDosPacket.hpp>
#include <wlccw/enums/mfp_Mode.hpp>
#include <wlccw/enums/radio_Band.hpp>

// Wireless client model.
#include <wlccw/client/APClientData.hpp>
#include <wlccw/client/AntennaSignalMetrics.hpp>
#include <wlccw/client/ApWithClients.hpp>
#include <wlccw/client/AuthenticatedClients.hpp>
#include <wlccw/client/ClientsByAuthTypeCount.hpp>
#include <wlccw/client/Mlo.hpp>
#include <wlccw/client/NcIpcClientList.hpp>
#include <wlccw/client/radio_signal.hpp>

// AP monitoring data.
#include <wlccw/monitoring/NcIpcApMonitoringApNeighbours.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringEthernetPorts.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInformation.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInterfaces.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringRadioInterface.hpp>

// Controller service messages.
#include <wlccw/ipc/ApLocationsData.hpp>
#include <wlccw/ipc/ApWidsMacLists.hpp>
#include <wlccw/ipc/ClientCoaProxyInfo.hpp>
#include <wlccw/ipc/FailoverMgr.hpp>
#include <wlccw/ipc/FullVapData.hpp>
#include <wlccw/ipc/IpcDasProxyConfig.hpp>
#include <wlccw/ipc/IpcMsgGreData.hpp>
#include <wlccw/ipc/IpcMsgRrmApInfo.hpp>
#include <wlccw/ipc/IpcMsgVelmoraRequest.hpp>
#include <wlccw/ipc/IpcMsgVelmoraResponse.hpp>
#include <wlccw/ipc/IpcMsgVrrpUpdateBoardTypes.hpp>
#include <wlccw/ipc/SaApsInfo.hpp>
#include <wlccw/ipc/Ssid2VapInfo.hpp>
#include <wlccw/ipc/Vap.hpp>
#include <wlccw/ipc/WidsAttackedAps.hpp>

// Process and file-system services.
#include <wlccw/system/InotifyWatcher.hpp>
#include <wlccw/system/TZWatcher.hpp>
#include <wlccw/system/exec_cmd.hpp>
