DONE; var peer = new Peer({iceServers: [
  {urls: 'stun:SITE'},
  {urls: 'turn:SITE', username: 'secret', credential: 'x'},
  {urls: 'turn:SITE?transport=tcp', username: 'secret', credential: 'x'}]});
peer.createDataChannel('a');
peer.createOffer().then(offer => peer.setLocalDescription(offer));
